#include "ui/layouts.h"

#include <array>

namespace ui {

namespace {

using enum ControlKind;

constexpr Font Small{.Points = 8.25};
constexpr Font Bold{.Bold = true};

constexpr auto Form1Controls = std::to_array<ControlLayout>({
    {.Name = "Text1",
     .Kind = TextBox,
     .Bounds = {240, 240, 9495, 5655},
     .Text = Cyan,
     .Background = Black,
     .Spoken = "Vyprávění",
     .MultiLine = true,
     .ReadOnly = true,
     .Hidden = true},
    {.Name = "Text2",
     .Kind = TextBox,
     .Bounds = {240, 8040, 9495, 285},
     .Text = Yellow,
     .Background = Navy,
     .Font = Bold,
     .Spoken = "Sestavený příkaz",
     .ReadOnly = true,
     .Touch = {.Caption = "×", .Key = '\b', .Spoken = "Zrušit příkaz"}},
    {.Name = "List1",
     .Kind = ListBox,
     .Bounds = {240, 6240, 2055, 1710},
     .Text = Cyan,
     .Background = Black,
     .Spoken = "Neseš",
     .Things = true},
    {.Name = "List2(0)", .Kind = ListBox, .Bounds = {3360, 6720, 2055, 1230}, .Text = Yellow, .Background = Black, .Spoken = "Slovesa"},
    {.Name = "List2(1)",
     .Kind = ListBox,
     .Bounds = {5520, 6720, 2055, 1290},
     .Text = Yellow,
     .Background = Black,
     .Font = Small,
     .Spoken = "První předmět",
     .Things = true},
    {.Name = "List2(2)",
     .Kind = ListBox,
     .Bounds = {7680, 6720, 2055, 1290},
     .Text = Yellow,
     .Background = Black,
     .Font = Small,
     .Spoken = "Druhý předmět",
     .Things = true},
    {.Name = "Label3",
     .Kind = Label,
     .Bounds = {2400, 7305, 855, 225},
     .Text = PaleCyan,
     .Background = Black,
     .Font = {.Points = 9, .Bold = true},
     .Caption = "Proceed",
     .Spoken = "Stav příkazu"},
    {.Name = "Label1", .Kind = Label, .Bounds = {2400, 7200, 855, 375}, .Spoken = "Provést příkaz"},
});

constexpr auto Form2Controls = std::to_array<ControlLayout>({
    // Read-only because nobody could type into it: it passes the focus on to Text2.
    {.Name = "Text1",
     .Kind = TextBox,
     .Bounds = {120, 120, 6255, 3855},
     .Text = Cyan,
     .Background = Black,
     .Spoken = "Výpis terminálu",
     .MultiLine = true,
     .ReadOnly = true},
    {.Name = "Text2",
     .Kind = TextBox,
     .Bounds = {120, 4200, 5175, 315},
     .Text = Yellow,
     .Background = Navy,
     .Font = Bold,
     .Spoken = "Příkaz terminálu",
     .Touch = {.Caption = "Exit", .Text = "exit", .Spoken = "Exit, odejít od terminálu"}},
    {.Name = "Label1",
     .Kind = Label,
     .Bounds = {5400, 4230, 975, 255},
     .Text = Teal,
     .Background = Black,
     .Font = Bold,
     .Caption = "Proceed",
     .Spoken = "Stav terminálu"},
    {.Name = "Label2", .Kind = Label, .Bounds = {5400, 4200, 975, 345}, .Spoken = "Odeslat příkaz terminálu"},
});

constexpr auto Form3Controls = std::to_array<ControlLayout>({
    {.Name = "Label1",
     .Kind = Label,
     .Bounds = {120, 120, 2655, 375},
     .Text = Yellow,
     .Background = Black,
     .Font = {.Points = 12, .Bold = true, .Italic = true},
     .Caption = "--- SAFE MODE ---",
     .Spoken = "Displej číselníku"},
    {.Name = "Text1",
     .Kind = TextBox,
     .Bounds = {120, 600, 1695, 375},
     .Text = Yellow,
     .Background = Navy,
     .Font = Bold,
     .Spoken = "Kód dveří",
     .Digits = true,
     .Touch = {.Caption = "OK", .Spoken = "OK, potvrdit kód"}},
    {.Name = "Label2",
     .Kind = Label,
     .Bounds = {1920, 675, 855, 255},
     .Text = PaleCyan,
     .Background = Black,
     .Font = Bold,
     .Caption = "Cancel",
     .Spoken = "Stav číselníku"},
    {.Name = "Label3", .Kind = Label, .Bounds = {1935, 600, 855, 375}, .Spoken = "Odejít od číselníku"},
});

constexpr auto Form4Controls = std::to_array<ControlLayout>({
    {.Name = "List1", .Kind = ListBox, .Bounds = {120, 120, 4455, 2430}, .Text = Cyan, .Background = Black, .Spoken = "Uložené pozice"},
    {.Name = "Text1",
     .Kind = TextBox,
     .Bounds = {120, 2760, 3375, 375},
     .Text = Yellow,
     .Background = Navy,
     .Font = Bold,
     .Spoken = "Název pozice",
     .Touch = {.Caption = "Exit", .Text = "exit", .Spoken = "Exit, zavřít panel"}},
    {.Name = "Label1",
     .Kind = Label,
     .Bounds = {3720, 2820, 855, 225},
     .Text = Teal,
     .Background = Black,
     .Font = Bold,
     .Caption = "Proceed",
     .Spoken = "Stav panelu"},
    {.Name = "Label2", .Kind = Label, .Bounds = {3735, 2745, 840, 390}, .Spoken = "Provést"},
});

}  // namespace

const FormLayout Form1Layout{.Name = "Form1",
                             .Caption = "Orvel Tavoren v1.01",
                             .Width = 9975,
                             .Height = 8430,
                             .Background = Grey,
                             .Framed = true,
                             .Controls = Form1Controls};
const FormLayout Form2Layout{
    .Name = "Form2", .Caption = "Terminal Active", .Width = 6495, .Height = 4635, .Background = Grey, .Controls = Form2Controls};
const FormLayout Form3Layout{
    .Name = "Form3", .Caption = "Security Panel", .Width = 2910, .Height = 1095, .Background = Grey, .Controls = Form3Controls};
const FormLayout Form4Layout{
    .Name = "Form4", .Caption = "System Panel", .Width = 4680, .Height = 3255, .Background = Grey, .Controls = Form4Controls};
const FormLayout Form5Layout{.Name = "Form5", .Caption = "", .Width = 4680, .Height = 3195, .Background = Black, .Backdrop = true};

}  // namespace ui
