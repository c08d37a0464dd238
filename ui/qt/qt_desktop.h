// The desktop on a real screen: mirrors the windows' models in Qt widgets. There is one Application first.
#pragma once

#include <QEventLoop>
#include <QMessageBox>
#include <array>
#include <memory>
#include <vector>

#include "ui/desktop.h"
#include "ui/qt/form_widget.h"
#include "ui/windows.h"

namespace ui::qt {

class QtDesktop final : public Desktop {
public:
    explicit QtDesktop(Windows& mirrored)
        : windows(mirrored),
          entrance{mirrored, [this](const auto& event) { Enter(event); }, [this](const auto& event) { Handle(event); }} {}
    ~QtDesktop() override;

    // Shows the windows and plays until the program ends.
    void Run();

    bool HasFontFamily(std::string_view name) const override;
    void ShowMessageBox(std::string_view text, std::string_view title) override;
    void ShowModal(Form& form) override;
    std::size_t CountLines(const TextBox& box) const override;

    // The entrance of every event of Qt. Once the program has ended there are no events any more, and a message box shuts it.
    void Enter(const std::function<void()>& event);

    FormWidget& WidgetOf(const Form& form) const;
    bool Ended() const { return ended; }

private:
    void Handle(const std::function<void()>& event);
    void Mirror();
    void MirrorPointer();
    void RunLoop();

    Windows& windows;
    Entrance entrance;
    mutable std::array<std::unique_ptr<FormWidget>, 5> forms;  // each made when it is first needed
    Form* modal = nullptr;
    QMessageBox* openBox = nullptr;  // the one that waits for the player
    std::vector<QEventLoop*> loops;  // the innermost last
    bool mirroring = false;
    bool ended = false;
};

}  // namespace ui::qt
