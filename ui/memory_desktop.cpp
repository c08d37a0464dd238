#include "ui/memory_desktop.h"

#include "ui/errors.h"
#include "ui/input.h"

namespace ui {

void MemoryDesktop::RunEvent(const std::function<void()>& event) {
    const Outcome outcome = entry.Run(event);
    if (!outcome.Complaint.empty()) ShowMessageBox(outcome.Complaint, ErrorTitle);
}

MemoryDesktop::Refusal MemoryDesktop::WhyGone(const Form& form) const {
    if (!Running()) return "the program has ended";
    if (!form.Visible) return std::string(form.Layout.Name) + " is hidden";
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::WhyUnreachable(const Form& form) const {
    if (auto refusal = WhyGone(form)) return refusal;
    if (entry.IsShut(form)) return std::string(Modal()->Layout.Name) + " is modal";
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::ClickEntry(const Form& form, ListBox& list, int index) {
    if (auto refusal = WhyUnreachable(form)) return refusal;
    if (index < 0 || static_cast<std::size_t>(index) >= list.Entries().size()) return "the list has no such entry";
    RunEvent([&] { ui::ClickEntry(windows, list, index); });
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::ClickLabel(const Form& form, Label& label) {
    if (auto refusal = WhyUnreachable(form)) return refusal;
    RunEvent([&] { ui::ClickLabel(label); });
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::PressKey(const Form& form, TextBox& box, char32_t key) {
    if (auto refusal = WhyUnreachable(form)) return refusal;
    if (!box.Visible()) return "the control is hidden";
    RunEvent([&] { ui::PressKey(windows, box, key); });
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::Focus(const Form& form, const Control& control) {
    if (auto refusal = WhyUnreachable(form)) return refusal;
    if (!TakesFocus(control)) return "the control cannot have the focus";
    RunEvent([&] { GiveFocus(windows, control); });
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::Focus(Form& form) {
    if (auto refusal = WhyUnreachable(form)) return refusal;
    RunEvent([&] { GiveFocus(windows, form); });
    return std::nullopt;
}

MemoryDesktop::Refusal MemoryDesktop::Close(const Form& form) {
    if (auto refusal = WhyGone(form)) return refusal;
    if (!form.CloseBox) return std::string(form.Layout.Name) + " has no close box";
    RunEvent([&] { form.CloseBox(); });
    return std::nullopt;
}

void MemoryDesktop::ShowMessageBox(std::string_view text, std::string_view title) {
    messageBoxes.push_back({.Title = std::string(title), .Text = std::string(text)});
}

void MemoryDesktop::ShowModal(Form& form) {
    entry.ShowModal(form, [&] {
        while (form.Visible && Running()) {
            ranDry = !NextEvent || !NextEvent();
            if (ranDry) EndProcess();
        }
    });
}

}  // namespace ui
