// A window of the game with its controls, picture and shape.
#pragma once

#include <QWidget>
#include <variant>
#include <vector>

#include "ui/qt/entrance.h"
#include "ui/qt/entry_list.h"
#include "ui/qt/input_line.h"
#include "ui/qt/label_area.h"
#include "ui/qt/output_view.h"
#include "ui/qt/picture.h"

namespace ui::qt {

class FormWidget final : public QWidget {
public:
    FormWidget(const Entrance& door, Form& mirrored);

    // An unreachable window is one behind a modal one. A window that appears stands in the middle of its owner, and stays above it;
    // without an owner it stands in the middle of the screen.
    void Mirror(bool reachable, const FormWidget* owner);
    void MirrorFocus();

    Form& Model() const { return form; }
    QWidget* WidgetOf(const Control& control) const;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    using ControlWidget = std::variant<OutputView*, InputLine*, EntryList*, LabelArea*>;

    ControlWidget MakeWidget(const Control& control);
    void MirrorLook();
    void Place(const FormWidget* owner);
    void TakeFocus();
    bool LoadPicture();  // true: it is a new one

    const Entrance& entrance;
    Form& form;
    std::vector<ControlWidget> controls;  // in the order of the form's
    Picture picture;
    std::filesystem::path mirroredIcon;
};

}  // namespace ui::qt
