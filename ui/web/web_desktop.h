// The desktop in a browser: mirrors the windows' models in a page. It waits in one place for the page's next event, be it in the main
// window, in a modal form or in a message box; so nothing ever enters the game while it sleeps.
#pragma once

#include <functional>

#include "ui/desktop.h"
#include "ui/web/mirror.h"
#include "ui/windows.h"

namespace ui::web {

class WebDesktop final : public Desktop {
public:
    explicit WebDesktop(Windows& mirrored) : windows(mirrored), mirror(mirrored) {}

    // Called when files came or went without the program's doing, as between two events of the player.
    std::function<void()> FilesChanged;

    // Shows the windows and plays until the program ends.
    void Run();

    bool HasFontFamily(std::string_view name) const override;
    void ShowMessageBox(std::string_view text, std::string_view title) override;
    void ShowModal(Form& form) override;
    std::size_t CountLines(const TextBox& box) const override;

private:
    void Enter(const std::function<void()>& event);
    void PlayNextEvent();
    void Play(const page::Event& event, Form& form);
    bool IsReachable(const page::Event& event) const;

    Windows& windows;
    mutable Mirror mirror;
    Form* modal = nullptr;
    bool ended = false;
    bool filesHaveChanged = false;  // while a message was in the way
};

}  // namespace ui::web
