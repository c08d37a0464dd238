// A plain Qt window with the controls of the main window at their places, and nothing behind them.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(665, 562);
    const auto place = [&window](QWidget* widget, const QRect& area) {
        widget->setParent(&window);
        widget->setGeometry(area);
        QPalette colours;
        colours.setColor(QPalette::Base, Qt::black);
        colours.setColor(QPalette::Text, Qt::yellow);
        widget->setPalette(colours);
    };
    auto* output = new QPlainTextEdit;
    place(output, {16, 16, 633, 377});
    output->hide();
    auto* command = new QLineEdit;
    place(command, {16, 536, 633, 19});
    QPalette navy = command->palette();
    navy.setColor(QPalette::Base, QColor(0, 0, 64));
    command->setPalette(navy);
    auto* verbs = new QListWidget;
    for (const QRect& area : {QRect(16, 416, 137, 114), QRect(368, 448, 137, 86), QRect(512, 448, 137, 86)}) place(new QListWidget, area);
    place(verbs, {224, 448, 137, 82});
    for (const char* verb : {"Jdi", "Prozkoumej", "Použij", "Vezmi", "Polož", "Otevři", "Zavři", "Oslov", "Vymaž", "Nahraj pozici",
                             "Ulož pozici", "Verze", "Exit"}) {
        verbs->addItem(verb);
    }
    place(new QLabel("Proceed"), {160, 487, 57, 15});
    place(new QLabel, {160, 480, 57, 25});
    window.setGeometry((1280 - 665) / 2, (900 - 562) / 2, 665, 562);
    window.show();
    return QApplication::exec();
}
