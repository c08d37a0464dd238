#include "ui/controls.h"

#include <algorithm>
#include <utility>

#include "text/windows1250.h"

namespace ui {

namespace {

std::size_t CountLineBreaks(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

// What a single line can show: a pasted line break or tab leaves no trace.
std::string WithoutControlCharacters(std::string text) {
    std::erase_if(text, [](unsigned char byte) { return byte < ' '; });
    return text;
}

}  // namespace

TextBox::TextBox(const ControlLayout& layout) : Layout(layout), visible(!layout.Hidden) {}

void TextBox::Replace(std::string_view text, std::size_t caretByte) {
    const bool differs = text != content;
    if (differs) {
        content = text;
        lineBreaks = CountLineBreaks(text);
        ++replacements;
    }
    caret = std::min(caretByte, content.size());
    ++changes;
    if (differs && Change) Change();
}

void TextBox::SetText(std::string_view text) {
    Replace(text, 0);
}

void TextBox::AppendText(std::string_view text) {
    if (text.empty()) return;
    content += text;
    lineBreaks += CountLineBreaks(text);
    ++changes;
    if (Change) Change();
}

void TextBox::MoveCaretToEnd() {
    caret = content.size();
    ++changes;
}

void TextBox::EditText(std::string_view text, std::size_t caretByte) {
    const auto typed = [](std::string_view part) { return WithoutControlCharacters(text::ReplaceForeignCharacters(part)); };
    const std::string before = typed(text.substr(0, caretByte));
    const std::string after = typed(text.substr(std::min(caretByte, text.size())));
    Replace(before + after, before.size());
}

void TextBox::SetVisible(bool value) {
    visible = value;
    ++changes;
}

void TextBox::SetCaretShape(CaretShape value) {
    shape = value;
    ++changes;
}

std::string_view ListBox::Entry(int index) const {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < entries.size();
    return exists ? std::string_view(entries[static_cast<std::size_t>(index)]) : std::string_view();
}

void ListBox::Clear() {
    entries.clear();
    selected = -1;
    ++changes;
}

void ListBox::Append(std::string_view entry) {
    entries.emplace_back(entry);
    ++changes;
}

void ListBox::Select(int index) {
    selected = index;
    ++changes;
}

void Label::SetCaption(std::string_view value) {
    caption = value;
    ++changes;
}

void Label::SetTextColour(Colour value) {
    colour = value;
    ++changes;
}

Form::Form(const FormLayout& layout, std::vector<Control> controls, std::vector<Form*>& all)
    : Layout(layout), Controls(std::move(controls)) {
    all.push_back(this);
}

const ControlLayout& LayoutOf(const Control& control) {
    return std::visit([](const auto* each) -> const ControlLayout& { return each->Layout; }, control);
}

bool IsLit(const Label& label) {
    return label.TextColour() == PaleCyan;
}

std::string_view SpokenLight(const Label& label) {
    if (IsLit(label)) return "svítí";
    return label.TextColour() == Teal ? "zhaslo" : "";
}

}  // namespace ui
