#include "ui/web/web_desktop.h"

#include <utility>

#include "ui/errors.h"
#include "ui/input.h"

namespace ui::web {

namespace {

// The page itself edits the boxes that can be edited and reports that as an Edit event, so their keys are only announced.
void Key(Windows& windows, const Control& control, char32_t key) {
    if (auto* const* list = std::get_if<ListBox*>(&control)) return PressKey(**list, key);
    auto* const* box = std::get_if<TextBox*>(&control);
    if (box == nullptr) return;
    if ((*box)->Layout.ReadOnly) return PressKey(windows, **box, key);
    page::AnswerKey(true);  // the answer when the announcement ends the game
    page::AnswerKey(AnnounceKey(**box, key));
}

void Edit(const Control& control, const page::Event& event) {
    auto* const* box = std::get_if<TextBox*>(&control);
    if (box != nullptr && !(*box)->Layout.ReadOnly) (*box)->EditText(event.Before + event.After, event.Before.size());
}

}  // namespace

void WebDesktop::Enter(const std::function<void()>& event) {
    const Outcome outcome = entry.Run(event);
    if (outcome.Ended) return;
    mirror.Copy(entry.Modal(), false);
    if (!outcome.Complaint.empty()) ShowMessageBox(outcome.Complaint, ErrorTitle);
}

void WebDesktop::Run() {
    mirror.Copy(entry.Modal(), false);
    while (!entry.Ended()) PlayNextEvent();
    page::SayTheEnd();
}

void WebDesktop::ShowModal(Form& form) {
    entry.ShowModal(form, [&] {
        mirror.Copy(&form, false);
        while (form.Visible && !entry.Ended()) PlayNextEvent();
    });
}

void WebDesktop::ShowMessageBox(std::string_view text, std::string_view title) {
    mirror.Copy(entry.Modal(), true);
    page::OpenMessageBox(text, title);
    for (;;) {
        const page::EventKind kind = page::WaitForEvent().Kind;
        if (kind == page::EventKind::Acknowledge) break;
        if (kind == page::EventKind::FilesChanged) RunNext(FilesChanged);
    }
    page::CloseMessageBox();
    mirror.Copy(entry.Modal(), false);
}

void WebDesktop::ShowNotice(std::string_view sentence) {
    page::ShowNotice(sentence);
}

std::size_t WebDesktop::CountLines(const TextBox& box) const {
    return mirror.CountLines(box);
}

// The page brings a face that runs as wide.
bool WebDesktop::HasFontFamily(std::string_view name) const {
    return name == "Arial";
}

// The player may have caused the event before its window was hidden or shut.
bool WebDesktop::IsReachable(const page::Event& event) const {
    if (event.Kind == page::EventKind::Acknowledge) return false;
    const Form* const form = windows.All.at(static_cast<std::size_t>(event.Target.Form));
    return form->Visible && !entry.IsShut(*form);
}

void WebDesktop::PlayNextEvent() {
    if (next) return Enter(std::exchange(next, nullptr));
    const page::Event event = page::WaitForEvent();
    if (event.Kind == page::EventKind::FilesChanged) return Enter(FilesChanged);
    if (event.Kind == page::EventKind::Resume) return Enter(Resumed);
    if (!IsReachable(event)) return;
    Enter([&] { Play(event, *windows.All[static_cast<std::size_t>(event.Target.Form)]); });
}

void WebDesktop::Play(const page::Event& event, Form& form) {
    const Control& control = form.Controls.at(static_cast<std::size_t>(event.Target.Control));
    auto* const* list = std::get_if<ListBox*>(&control);
    auto* const* label = std::get_if<Label*>(&control);
    switch (event.Kind) {
        case page::EventKind::Focus: return GiveFocus(windows, control);
        case page::EventKind::Key: return Key(windows, control, static_cast<char32_t>(event.Number));
        case page::EventKind::Edit: return Edit(control, event);
        case page::EventKind::ClickEntry:
            if (list != nullptr && event.Number < static_cast<int>((*list)->Entries().size())) ClickEntry(windows, **list, event.Number);
            return;
        case page::EventKind::ClickLabel:
            if (label != nullptr) ClickLabel(**label);
            return;
        case page::EventKind::Acknowledge:
        case page::EventKind::FilesChanged:
        case page::EventKind::Resume: return;
    }
}

}  // namespace ui::web
