// The controls and forms of the windowing layer: what they show and the slots of their events. They know no toolkit.
// Every function that changes a control raises its change counter, by which a desktop sees what to paint again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ui/layouts.h"

namespace ui {

struct CaretShape {
    int Width, Height;  // pixels
};

constexpr CaretShape InputCaret{1, 7};  // of all input boxes

// Lines are separated by CR LF. The caret is a byte position in the UTF-8 text.
class TextBox {
public:
    explicit TextBox(const ControlLayout& layout);

    const ControlLayout& Layout;
    std::function<void()> GotFocus;
    std::function<void()> Change;
    std::function<void(int keyCode)> KeyDown;
    std::function<bool(char32_t key)> KeyPress;  // true: the key is swallowed

    const std::string& Text() const { return content; }
    std::size_t Caret() const { return caret; }
    std::size_t LineBreaks() const { return lineBreaks; }
    bool Visible() const { return visible; }
    const std::optional<CaretShape>& Shape() const { return shape; }

    void SetText(std::string_view text);  // moves the caret to the start
    void AppendText(std::string_view text);
    void MoveCaretToEnd();
    void EditText(std::string_view text, std::size_t caretByte);  // the player's edit; what Windows-1250 lacks becomes "?"
    void SetVisible(bool visible);
    void SetCaretShape(CaretShape shape);

    std::uint64_t Changes() const { return changes; }
    // Grows whenever the text is replaced. As long as it does not grow, the text has only been appended to.
    std::uint64_t Replacements() const { return replacements; }

private:
    void Replace(std::string_view text, std::size_t caretByte);

    std::string content;
    std::size_t caret = 0;
    std::size_t lineBreaks = 0;
    bool visible;
    std::optional<CaretShape> shape;
    std::uint64_t changes = 0;
    std::uint64_t replacements = 0;
};

class ListBox {
public:
    explicit ListBox(const ControlLayout& layout) : Layout(layout) {}

    const ControlLayout& Layout;
    std::function<void()> GotFocus;
    std::function<void()> Click;
    std::function<bool(char32_t key)> KeyPress;  // true: the key is swallowed

    const std::vector<std::string>& Entries() const { return entries; }
    int Selected() const { return selected; }  // -1: none
    std::string_view Entry(int index) const;   // empty when the list has no such entry
    std::string_view SelectedEntry() const { return Entry(selected); }

    void Clear();
    void Append(std::string_view entry);
    void Select(int index);

    std::uint64_t Changes() const { return changes; }

private:
    std::vector<std::string> entries;
    int selected = -1;
    std::uint64_t changes = 0;
};

class Label {
public:
    explicit Label(const ControlLayout& layout) : Layout(layout), caption(layout.Caption), colour(layout.Text) {}

    const ControlLayout& Layout;
    std::function<void()> Click;

    const std::string& Caption() const { return caption; }
    Colour TextColour() const { return colour; }

    void SetCaption(std::string_view caption);
    void SetTextColour(Colour colour);

    std::uint64_t Changes() const { return changes; }

private:
    std::string caption;
    Colour colour;
    std::uint64_t changes = 0;
};

using Control = std::variant<TextBox*, ListBox*, Label*>;

const ControlLayout& LayoutOf(const Control& control);

// Whether the label is a state light that shines.
bool IsLit(const Label& label);

// What a screen reader says of a state light; nothing of other labels.
std::string_view SpokenLight(const Label& label);

// A rounded rectangle in pixels of the whole window, frame and title bar included.
struct RoundRegion {
    int Left, Top, Right, Bottom, Ellipse;
};

struct Form {
    // Enters the form in the list of all, by which the desktops find what there is to show.
    Form(const FormLayout& layout, std::vector<Control> controls, std::vector<Form*>& all);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const FormLayout& Layout;
    const std::vector<Control> Controls;  // in tab order
    std::function<void()> GotFocus{};
    std::function<void()> CloseBox{};

    bool Visible = false;
    bool AlwaysOnTop = false;
    std::optional<RoundRegion> Region{};
    std::filesystem::path Picture{};   // fills the client area
    std::filesystem::path Icon{};      // in the title bar and the task bar
    std::optional<Control> Focused{};  // the control that has the focus when the form has it
};

}  // namespace ui
