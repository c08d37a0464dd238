#include "ui/web/web_desktop.h"

#include <utility>

#include "ui/errors.h"
#include "ui/input.h"

namespace ui::web {

namespace {

void Focus(Windows& windows, const Control& control) {
    if (!TakesFocus(control)) return;
    if (auto* const* box = std::get_if<TextBox*>(&control)) GiveFocus(windows, **box);
    if (auto* const* list = std::get_if<ListBox*>(&control)) GiveFocus(windows, **list);
}

// The page edits the boxes that can be edited, and reports it.
void Key(Windows& windows, const Control& control, char32_t key) {
    if (auto* const* list = std::get_if<ListBox*>(&control)) return PressKey(**list, key);
    auto* const* box = std::get_if<TextBox*>(&control);
    if (box == nullptr) return;
    if ((*box)->Layout.ReadOnly) return PressKey(windows, **box, key);
    page::AnswerKey(true);  // so it stays when the announcement ends the game
    page::AnswerKey(AnnounceKey(**box, key));
}

void Edit(const Control& control, const page::Event& event) {
    auto* const* box = std::get_if<TextBox*>(&control);
    if (box != nullptr && !(*box)->Layout.ReadOnly) (*box)->EditText(event.Before + event.After, event.Before.size());
}

}  // namespace

void WebDesktop::Enter(const std::function<void()>& event) {
    std::string complaint;
    try {
        event();
    } catch (const ProgramEnded&) {
        ended = true;
        return;
    } catch (const GameError& error) {
        complaint = error.what();
    }
    mirror.Copy(modal, false);
    if (!complaint.empty()) ShowMessageBox(complaint, "Chyba");
}

void WebDesktop::Run() {
    mirror.Copy(modal, false);
    while (!ended) PlayNextEvent();
    page::SayTheEnd();
}

void WebDesktop::ShowModal(Form& form) {
    Form* const outer = std::exchange(modal, &form);
    Form* const behind = windows.Active;
    Show(windows, form);
    mirror.Copy(modal, false);
    while (form.Visible && !ended) PlayNextEvent();
    modal = outer;
    if (ended) EndProcess();
    if (behind != nullptr) GiveFocus(windows, *behind);
}

void WebDesktop::ShowMessageBox(std::string_view text, std::string_view title) {
    mirror.Copy(modal, true);
    page::OpenMessageBox(text, title);
    for (;;) {
        const page::EventKind kind = page::WaitForEvent().Kind;
        if (kind == page::EventKind::Acknowledge) break;
        if (kind == page::EventKind::FilesChanged) filesHaveChanged = true;
    }
    page::CloseMessageBox();
    mirror.Copy(modal, false);
}

std::size_t WebDesktop::CountLines(const TextBox& box) const {
    return mirror.CountLines(box);
}

bool WebDesktop::HasFontFamily(std::string_view name) const {
    return name == "Arial" && page::HasArial();
}

// An event may have been on its way when its window went.
bool WebDesktop::IsReachable(const page::Event& event) const {
    if (event.Kind == page::EventKind::Acknowledge) return false;
    const Form* const form = windows.All.at(static_cast<std::size_t>(event.Target.Form));
    return form->Visible && (modal == nullptr || modal == form);
}

void WebDesktop::PlayNextEvent() {
    if (std::exchange(filesHaveChanged, false)) return Enter(FilesChanged);
    const page::Event event = page::WaitForEvent();
    if (event.Kind == page::EventKind::FilesChanged) return Enter(FilesChanged);
    if (!IsReachable(event)) return;
    Enter([&] { Play(event, *windows.All[static_cast<std::size_t>(event.Target.Form)]); });
}

void WebDesktop::Play(const page::Event& event, Form& form) {
    const Control& control = form.Controls.at(static_cast<std::size_t>(event.Target.Control));
    auto* const* list = std::get_if<ListBox*>(&control);
    auto* const* label = std::get_if<Label*>(&control);
    switch (event.Kind) {
        case page::EventKind::Focus: return Focus(windows, control);
        case page::EventKind::Key: return Key(windows, control, static_cast<char32_t>(event.Number));
        case page::EventKind::Edit: return Edit(control, event);
        case page::EventKind::ClickEntry:
            if (list != nullptr && event.Number < static_cast<int>((*list)->Entries().size())) ClickEntry(windows, **list, event.Number);
            return;
        case page::EventKind::ClickLabel:
            if (label != nullptr) ClickLabel(**label);
            return;
        case page::EventKind::Acknowledge:
        case page::EventKind::FilesChanged: return;
    }
}

}  // namespace ui::web
