// A window of the game with its controls, picture and shape.
#pragma once

#include <QWidget>
#include <optional>
#include <variant>
#include <vector>

#include "ui/qt/entry_list.h"
#include "ui/qt/event_sink.h"
#include "ui/qt/input_line.h"
#include "ui/qt/label_area.h"
#include "ui/qt/output_view.h"
#include "ui/qt/picture.h"

namespace ui::qt {

class FormWidget final : public QWidget {
public:
    FormWidget(const EventSink& sink, Form& mirrored);

    // A window behind a modal one is not reachable. A window that appears stands in the middle of its owner, and stays above it;
    // without an owner it stands in the middle of the screen.
    void Mirror(bool reachable, const FormWidget* owner);
    // Moves the keyboard's focus when the program's focus has moved. Tab leads the keyboard alone to lists and buttons, and the keys that
    // they do not use go to the control that has the program's focus.
    void MirrorFocus();

    Form& Model() const { return form; }
    QWidget* WidgetOf(const Control& control) const;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    using ControlWidget = std::variant<OutputView*, InputLine*, EntryList*, LabelArea*>;

    ControlWidget MakeWidget(const Control& control);
    void MirrorLook();
    void Place(const FormWidget* owner);
    void TakeFocus();
    void FocusAsProgram();
    void CopyOutput();
    bool LoadPicture();  // true: there is something new to show

    const EventSink& events;
    Form& form;
    std::vector<ControlWidget> controls;  // in the order of the form's
    Picture picture;
    std::filesystem::path mirroredIcon;
    std::optional<Control> mirroredFocus;
};

}  // namespace ui::qt
