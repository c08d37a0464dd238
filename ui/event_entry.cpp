#include "ui/event_entry.h"

#include <exception>
#include <utility>

#include "ui/errors.h"
#include "ui/input.h"

namespace ui {

Outcome EventEntry::Run(const std::function<void()>& event) {
    if (ended) return {.Ended = true};
    try {
        event();
        return {};
    } catch (const ProgramEnded&) {
        ended = true;
        return {.Ended = true};
    } catch (const GameError& error) {
        return {.Complaint = error.what()};
    } catch (const std::exception& error) {
        return {.Complaint = std::string(ProgramFault).append(error.what())};
    }
}

void EventEntry::ShowModal(Form& form, const std::function<void()>& playEvents) {
    Form* const behind = windows.Active;
    Show(windows, form);  // before the form is modal, because an error here would otherwise leave every other window shut
    const Form* const outer = std::exchange(modal, &form);
    playEvents();
    modal = outer;
    if (ended) EndProcess();
    if (behind != nullptr) GiveFocus(windows, *behind);
}

}  // namespace ui
