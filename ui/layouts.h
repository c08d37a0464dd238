// The five windows as data: what each one and its controls look like when they are created.
// Positions and sizes are in twips (15 to a pixel at 96 dpi), measured from the top left corner of the client area; fonts are Arial, in
// points.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace ui {

constexpr int TwipsPerPixel = 15;

struct Rect {
    int Left, Top, Width, Height;
};

struct Colour {
    std::uint8_t Red, Green, Blue;
    bool operator==(const Colour&) const = default;
};

constexpr std::string_view NothingThere = "---";  // the first entry of a list of things that offers none

constexpr Colour Black{0, 0, 0};
constexpr Colour Cyan{0, 255, 255};
constexpr Colour Yellow{255, 255, 0};
constexpr Colour Navy{0, 0, 64};
constexpr Colour PaleCyan{192, 255, 255};  // state light: a command is being built
constexpr Colour Teal{0, 128, 128};        // state light: the command has run
constexpr Colour Grey{192, 192, 192};

struct Font {
    double Points = 9.75;
    bool Bold = false;
    bool Italic = false;
};

enum class ControlKind { TextBox, ListBox, Label };

// A key that the keyboard of a phone lacks or hides. Where fingers play, the desktop shows it as a button at the end of the line.
struct TouchKey {
    std::string_view Caption{};  // empty: the line needs none
    std::string_view Text{};     // if any, it replaces what the line holds before the key is pressed
    char Key = '\r';             // '\b' is Backspace
    std::string_view Spoken{};   // what a screen reader calls it
};

struct ControlLayout {
    std::string_view Name;
    ControlKind Kind;
    Rect Bounds;
    Colour Text{};
    std::optional<Colour> Background{};  // nothing: transparent
    ui::Font Font{};
    std::string_view Caption{};  // labels only
    std::string_view Spoken{};   // what a screen reader calls it
    bool MultiLine = false;      // with a vertical scroll bar
    bool ReadOnly = false;
    bool Hidden = false;
    bool Digits = false;  // what is typed into it are digits as a rule
    bool Things = false;  // a list of things or ways, in which NothingThere stands for none
    TouchKey Touch{};
};

struct FormLayout {
    std::string_view Name;
    std::string_view Caption;
    int Width, Height;  // of the client area
    Colour Background;
    bool Framed = false;                        // with a frame, a title bar and a close box
    bool Backdrop = false;                      // covers the whole screen behind the other windows
    std::span<const ControlLayout> Controls{};  // in tab order

    // A panel opens above the main window, as a step of the command that runs there.
    bool IsPanel() const { return !Framed && !Backdrop; }
};

extern const FormLayout Form1Layout, Form2Layout, Form3Layout, Form4Layout, Form5Layout;

}  // namespace ui
