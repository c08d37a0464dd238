// The desktop without a screen, for tests and scripted play: message boxes are acknowledged at once, nothing wraps, and while a form is
// modal the next event comes from the script. An event that no player could cause is refused with the reason, and changes nothing.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/desktop.h"
#include "ui/event_entry.h"

namespace ui {

class MemoryDesktop final : public Desktop {
public:
    struct MessageBox {
        std::string Title, Text;
    };

    using Refusal = std::optional<std::string>;

    explicit MemoryDesktop(Windows& mirrored) : windows(mirrored), entry(mirrored) {}

    // Carries out the script's next event; false when there is none left.
    std::function<bool()> NextEvent;
    bool HasArial = true;

    Refusal ClickEntry(const Form& form, ListBox& list, int index);
    Refusal ClickLabel(const Form& form, Label& label);
    Refusal PressKey(const Form& form, TextBox& box, char32_t key);
    Refusal Focus(const Form& form, const Control& control);
    Refusal Focus(Form& form);
    Refusal Close(const Form& form);  // as on the screen, also behind a modal form

    // Runs what a player sets off; the message box of an error is acknowledged like every other.
    void RunEvent(const std::function<void()>& event);

    bool Running() const { return !entry.Ended(); }
    // The script ended inside a modal form: the program stopped there, the windows still as they were.
    bool RanDry() const { return ranDry; }
    const Form* Modal() const { return entry.Modal(); }
    std::vector<MessageBox> TakeMessageBoxes() { return std::exchange(messageBoxes, {}); }

    bool HasFontFamily(std::string_view name) const override { return name == "Arial" && HasArial; }
    void ShowMessageBox(std::string_view text, std::string_view title) override;
    void ShowModal(Form& form) override;
    std::size_t CountLines(const TextBox& box) const override { return box.LineBreaks() + 1; }

private:
    Refusal WhyGone(const Form& form) const;
    Refusal WhyUnreachable(const Form& form) const;

    Windows& windows;
    EventEntry entry;
    bool ranDry = false;
    std::vector<MessageBox> messageBoxes;
};

}  // namespace ui
