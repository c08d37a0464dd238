// A window of the game's size with its controls and nothing behind them: what the toolkit itself costs on this machine.
// A click on a verb writes it into the input line; Enter there appends a short reply with it to the output box.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScreen>

#include "core/verbs.h"
#include "ui/layouts.h"

namespace {

// The following repeats some of ui/qt/look.cpp, because the game's Qt desktop must not be linked into the window that it is measured
// against.
constexpr int RowHeight = 16;

QRect Pixels(const ui::Rect& twips) {
    return {twips.Left / ui::TwipsPerPixel, twips.Top / ui::TwipsPerPixel, twips.Width / ui::TwipsPerPixel,
            twips.Height / ui::TwipsPerPixel};
}

QColor ToQt(ui::Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

void Dress(QWidget& widget, const ui::ControlLayout& layout) {
    QPalette palette;
    for (const auto role : {QPalette::Text, QPalette::WindowText}) palette.setColor(role, ToQt(layout.Text));
    palette.setColor(QPalette::Base, ToQt(layout.Background.value_or(ui::Black)));
    widget.setPalette(palette);
    QFont font("Arial");
    font.setPixelSize(static_cast<int>(layout.Font.Points * 96 / 72));
    font.setBold(layout.Font.Bold);
    font.setItalic(layout.Font.Italic);
    widget.setFont(font);
    widget.setGeometry(Pixels(layout.Bounds));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    const ui::FormLayout& form = ui::Form1Layout;
    QWidget window;
    window.setWindowTitle("Bare window");
    QPalette palette;
    palette.setColor(QPalette::Window, ToQt(form.Background));
    window.setPalette(palette);
    window.setFixedSize(form.Width / ui::TwipsPerPixel, form.Height / ui::TwipsPerPixel);

    QPlainTextEdit* output = nullptr;
    QLineEdit* input = nullptr;
    QListWidget* verbs = nullptr;
    for (const ui::ControlLayout& layout : form.Controls) {
        QWidget* widget = nullptr;
        if (layout.Kind == ui::ControlKind::Label) {
            widget = new QLabel(QString::fromUtf8(layout.Caption.data(), std::ssize(layout.Caption)), &window);
        } else if (layout.Kind == ui::ControlKind::ListBox) {
            auto* list = new QListWidget(&window);
            list->setFocusPolicy(Qt::NoFocus);
            if (layout.Name == "List2(0)") verbs = list;
            widget = list;
        } else if (layout.MultiLine) {
            output = new QPlainTextEdit(&window);
            output->setReadOnly(true);
            output->setFocusPolicy(Qt::NoFocus);
            output->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
            widget = output;
        } else {
            widget = input = new QLineEdit(&window);
        }
        Dress(*widget, layout);
    }
    for (const std::string_view name : verb::Names) {
        verbs->addItem(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
        verbs->item(verbs->count() - 1)->setSizeHint({0, RowHeight});
    }
    QObject::connect(verbs, &QListWidget::itemPressed, input, [input](const QListWidgetItem* item) { input->setText(item->text()); });
    QObject::connect(input, &QLineEdit::returnPressed, output, [input, output] {
        output->appendPlainText("\n" + input->text() + ": tohle si nemůžeš vzít!");
        input->clear();
    });
    QRect place(QPoint(), window.size());
    place.moveCenter(window.screen()->geometry().center());
    window.setGeometry(place);
    window.show();
    input->setFocus();
    return QApplication::exec();
}
