#include "terminal/terminal_output.h"

#include "core/output.h"

void GetText(Game& game, std::string_view reply) {
    game.windows.Form2.Text1.AppendText(ParagraphBreak);
    game.windows.Form2.Text1.AppendText(reply);
}

void ReplyError(Game& game, std::string_view reason) {
    GetText(game, "! ERROR !");
    GetText(game, reason);
}
