#include "core/shut_down.h"

#include "ui/errors.h"
#include "ui/input.h"

void UnloadForm1(Game& game) {
    for (ui::Form* form : game.windows.All) ui::Hide(*form);
    ui::EndProcess();
}
