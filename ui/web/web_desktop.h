// The desktop in a browser: mirrors the windows' models in a page. Main window, modal forms and message boxes all wait in the same place
// for the page's next event, so no event comes while another one runs.
#pragma once

#include <functional>
#include <utility>

#include "ui/desktop.h"
#include "ui/event_entry.h"
#include "ui/web/mirror.h"

namespace ui::web {

class WebDesktop final : public Desktop {
public:
    explicit WebDesktop(Windows& mirrored) : windows(mirrored), entry(mirrored), mirror(mirrored) {}

    // Called between two events of the player when the page has added or removed saved games.
    std::function<void()> FilesChanged;
    // Called when the player wishes to go on with a game that was interrupted.
    std::function<void()> Resumed;

    // To be run before the page is asked for the next event.
    void RunNext(std::function<void()> event) { next = std::move(event); }

    // Shows the windows and plays until the program ends.
    void Run();

    bool HasFontFamily(std::string_view name) const override;
    void ShowMessageBox(std::string_view text, std::string_view title) override;
    void ShowNotice(std::string_view sentence) override;
    void ShowModal(Form& form) override;
    std::size_t CountLines(const TextBox& box) const override;

private:
    void Enter(const std::function<void()>& event);
    void PlayNextEvent();
    void Play(const page::Event& event, Form& form);
    bool IsReachable(const page::Event& event) const;

    Windows& windows;
    EventEntry entry;
    mutable Mirror mirror;
    std::function<void()> next;
};

}  // namespace ui::web
