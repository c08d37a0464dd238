#include "ui/web/layout_description.h"

#include <initializer_list>

namespace ui::web {

namespace {

std::string Quote(std::string_view text) {
    std::string quoted = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') quoted += '\\';
        quoted += byte;
    }
    return quoted += '"';
}

std::string Truth(bool value) {
    return value ? "true" : "false";
}

std::string Css(Colour colour) {
    return Quote("rgb(" + std::to_string(colour.Red) + " " + std::to_string(colour.Green) + " " + std::to_string(colour.Blue) + ")");
}

struct Member {
    std::string_view Name;
    std::string Value;
};

std::string Object(std::initializer_list<Member> members) {
    std::string object;
    for (const Member& member : members) object.append(object.empty() ? "{" : ",").append(Quote(member.Name) + ":" + member.Value);
    return object += "}";
}

template <typename List, typename Describe>
std::string Array(const List& list, const Describe& describe) {
    std::string array;
    for (const auto& each : list) array.append(array.empty() ? "[" : ",").append(describe(each));
    return array.empty() ? "[]" : array + "]";
}

std::string KindOf(const ControlLayout& layout) {
    switch (layout.Kind) {
        case ControlKind::TextBox: return layout.MultiLine ? "OutputView" : "InputLine";
        case ControlKind::ListBox: return "EntryList";
        case ControlKind::Label: break;
    }
    return "LabelArea";
}

bool TakesClicks(const Control& control) {
    auto* const* label = std::get_if<Label*>(&control);
    return label != nullptr && (*label)->Click;
}

std::string DescribeTouchKey(const TouchKey& touch) {
    return Object({{"caption", Quote(touch.Caption)},
                   {"text", Quote(touch.Text)},
                   {"key", std::to_string(+touch.Key)},
                   {"spoken", Quote(touch.Spoken)}});
}

std::string DescribeControl(const Control& control) {
    const ControlLayout& layout = LayoutOf(control);
    return Object({{"name", Quote(layout.Name)},
                   {"kind", Quote(KindOf(layout))},
                   {"left", std::to_string(layout.Bounds.Left)},
                   {"top", std::to_string(layout.Bounds.Top)},
                   {"width", std::to_string(layout.Bounds.Width)},
                   {"height", std::to_string(layout.Bounds.Height)},
                   {"text", Css(layout.Text)},
                   {"background", layout.Background ? Css(*layout.Background) : Quote("transparent")},
                   {"font", std::to_string(static_cast<int>(layout.Font.Points * 96 / 72))},
                   {"bold", Truth(layout.Font.Bold)},
                   {"italic", Truth(layout.Font.Italic)},
                   {"spoken", Quote(layout.Spoken)},
                   {"readOnly", Truth(layout.ReadOnly)},
                   {"digits", Truth(layout.Digits)},
                   {"nothing", Quote(layout.Things ? NothingThere : "")},
                   {"touch", DescribeTouchKey(layout.Touch)},
                   {"takesClicks", Truth(TakesClicks(control))}});
}

std::string DescribeForm(const Form* form) {
    const FormLayout& layout = form->Layout;
    return Object({{"name", Quote(layout.Name)},
                   {"caption", Quote(layout.Caption)},
                   {"width", std::to_string(layout.Width)},
                   {"height", std::to_string(layout.Height)},
                   {"background", Css(layout.Background)},
                   {"framed", Truth(layout.Framed)},
                   {"backdrop", Truth(layout.Backdrop)},
                   {"controls", Array(form->Controls, DescribeControl)}});
}

}  // namespace

std::string DescribeLayouts(const Windows& windows) {
    return Array(windows.All, DescribeForm);
}

}  // namespace ui::web
