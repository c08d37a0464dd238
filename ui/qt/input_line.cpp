#include "ui/qt/input_line.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPainter>
#include <QStyleHints>
#include <algorithm>

#include "ui/input.h"
#include "ui/qt/keys.h"
#include "ui/qt/look.h"
#include "ui/qt/text_menu.h"

namespace ui::qt {

InputLine::InputLine(const EventSink& sink, TextBox& mirrored, QWidget* parent) : QLineEdit(parent), events(sink), box(mirrored) {
    setFrame(false);
    setPalette(PaletteOf(box.Layout));
    setFont(ToQt(box.Layout.Font));
    // Newer FreeType draws the ring of a Ů above the line's height. Qt centres the line between the margins, hence twice what sticks out.
    const int sticksOut = -fontMetrics().boundingRect(u'Ů').top() - fontMetrics().ascent();
    setTextMargins(1, 0, 1, -2 * std::max(0, sticksOut));
    setAccessibleName(ToQt(box.Layout.Spoken));
    setReadOnly(box.Layout.ReadOnly);
    setGeometry(Pixels(box.Layout.Bounds));
    connect(this, &QLineEdit::textChanged, [this] { Report(); });
    connect(this, &QLineEdit::cursorPositionChanged, [this] {
        Report();
        StartBlinking();
    });
}

void InputLine::Mirror() {
    if (mirroredChanges == box.Changes()) return;
    mirroredChanges = box.Changes();
    setVisible(box.Visible());
    // Only what differs is set, because setting it undoes the player's selection.
    if (const QString content = ToQt(box.Text()); content != text()) setText(content);
    const auto before = ToQt(std::string_view(box.Text()).substr(0, box.Caret())).size();
    if (before != cursorPosition()) setCursorPosition(static_cast<int>(before));
    update();
}

QRect InputLine::CaretRect() const {
    if (!box.Shape()) return {};
    // Qt's rectangle reaches five pixels past the caret on its left.
    const QRect place = cursorRect();
    const int baseline = place.top() + fontMetrics().ascent();
    return {place.left() + 5, baseline - box.Shape()->Height, box.Shape()->Width, box.Shape()->Height};
}

void InputLine::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    if (caretLit) painter.fillRect(CaretRect(), palette().text());
    for (const QRect& side : QRegion(rect()) - rect().adjusted(1, 1, -1, -1)) painter.fillRect(side, BorderColour);
}

bool InputLine::Announce(char32_t character) {
    bool swallowed = true;  // the answer when the announcement ends the game
    events.Enter([&] { swallowed = AnnounceKey(box, character); });
    return swallowed;
}

void InputLine::Report() {
    const std::string before = FromQt(text().left(cursorPosition()));
    const std::string content = before + FromQt(text().mid(cursorPosition()));
    if (content == box.Text() && before.size() == box.Caret()) return;
    events.Enter([&] { box.EditText(content, before.size()); });
}

void InputLine::keyPressEvent(QKeyEvent* event) {
    // With nothing selected here, the copy key is meant for the output.
    if (event->matches(QKeySequence::Copy) && !hasSelectedText()) return event->ignore();
    if (IsShortcut(*event)) return PassShortcut(*event);
    const char32_t character = CharacterOf(*event);
    if (character != 0 && !isReadOnly()) setFocus();  // because the key may have been pressed on a button
    if (character != 0 && Announce(character)) return;
    QLineEdit::keyPressEvent(event);
}

void InputLine::PassShortcut(QKeyEvent& event) {
    QKeyEvent withoutText(event.type(), event.key(), event.modifiers());  // because Qt would type the "a" of Alt+A
    QLineEdit::keyPressEvent(&withoutText);
    event.setAccepted(withoutText.isAccepted());
}

void InputLine::inputMethodEvent(QInputMethodEvent* event) {
    QString kept;
    for (const char32_t character : event->commitString().normalized(QString::NormalizationForm_C).toUcs4()) {
        if (!Announce(character)) kept += QString::fromUcs4(&character, 1);
    }
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(kept, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&passed);
}

void InputLine::contextMenuEvent(QContextMenuEvent* event) {
    PopUpTextMenu(*this, event->globalPos());
}

void InputLine::focusInEvent(QFocusEvent* event) {
    QFocusEvent withoutReason(event->type());  // because Qt would select the whole text when Tab leads here
    QLineEdit::focusInEvent(&withoutReason);
    StartBlinking();
    events.Enter([this] { GiveFocus(events.Model, &box); });
}

void InputLine::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    blinking.stop();
    caretLit = false;
    update();
}

void InputLine::timerEvent(QTimerEvent* event) {
    if (event->timerId() != blinking.timerId()) return QLineEdit::timerEvent(event);
    caretLit = !caretLit;
    update();
}

void InputLine::StartBlinking() {
    if (!hasFocus()) return;
    caretLit = true;
    update();
    if (const int period = QGuiApplication::styleHints()->cursorFlashTime(); period > 0) blinking.start(period / 2, this);
}

}  // namespace ui::qt
