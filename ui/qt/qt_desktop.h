// The desktop on a real screen: mirrors the windows' models in Qt widgets. There is one Application first.
#pragma once

#include <QEventLoop>
#include <QMessageBox>
#include <memory>
#include <vector>

#include "ui/desktop.h"
#include "ui/event_entry.h"
#include "ui/qt/form_widget.h"

namespace ui::qt {

class QtDesktop final : public Desktop {
public:
    explicit QtDesktop(Windows& mirrored)
        : windows(mirrored),
          entry(mirrored),
          sink{mirrored, [this](const auto& event) { Enter(event); }, [this](const auto& event) { Handle(event); }},
          forms(mirrored.All.size()) {}
    ~QtDesktop() override;

    // Shows the windows and plays until the program ends.
    void Run();

    bool HasFontFamily(std::string_view name) const override;
    void ShowMessageBox(std::string_view text, std::string_view title) override;
    void ShowModal(Form& form) override;
    std::size_t CountLines(const TextBox& box) const override;

    // Runs an event of the player and copies what it changed to the widgets. Does nothing once the program has ended; while a message box
    // is open, the player is shown that box instead.
    void Enter(const std::function<void()>& event);

    FormWidget& WidgetOf(const Form& form) const;
    bool Ended() const { return entry.Ended(); }

private:
    void Handle(const std::function<void()>& event);
    void Mirror();
    void MirrorPointer();
    void RunLoop();

    Windows& windows;
    EventEntry entry;
    EventSink sink;
    mutable std::vector<std::unique_ptr<FormWidget>> forms;  // each made when it is first needed
    QMessageBox* openBox = nullptr;
    std::vector<QEventLoop*> loops;  // the innermost last
    bool mirroring = false;
};

}  // namespace ui::qt
