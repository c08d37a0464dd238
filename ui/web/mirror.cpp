#include "ui/web/mirror.h"

#include <algorithm>

#include "ui/web/layout_description.h"

namespace ui::web {

namespace {

template <typename List, typename Value>
int PlaceIn(const List& list, const Value& value) {
    return static_cast<int>(std::ranges::find(list, value) - list.begin());
}

}  // namespace

void Mirror::Build() {
    if (built) return;
    built = true;
    page::Build(DescribeLayouts(windows));
    for (const Form* form : windows.All) shownControls.emplace_back(form->Controls.size());
}

void Mirror::Copy(const Form* modal, bool blocked) {
    Build();
    for (std::size_t place = 0; place < windows.All.size(); ++place) {
        const Form& form = *windows.All[place];
        const bool reachable = !blocked && (modal == nullptr || modal == &form);
        page::ShowForm(static_cast<int>(place), form.Visible, reachable, form.Picture.filename().string());
        CopyControls(static_cast<int>(place));
    }
    page::ShowBusyPointer(windows.BusyPointer);
    if (!blocked) CopyFocus();
}

void Mirror::CopyControls(int form) {
    const auto& controls = windows.All[static_cast<std::size_t>(form)]->Controls;
    for (std::size_t place = 0; place < controls.size(); ++place) {
        Shown& shown = shownControls[static_cast<std::size_t>(form)][place];
        std::visit(
            [&](const auto* control) {
                if (shown.Changes == control->Changes()) return;
                shown.Changes = control->Changes();
                CopyControl({.Form = form, .Control = static_cast<int>(place)}, shown, *control);
            },
            controls[place]);
    }
}

void Mirror::CopyControl(page::Place place, Shown& shown, const TextBox& box) {
    if (!box.Layout.MultiLine) return page::ShowLine(place, box.Text(), box.Caret());
    const bool replaced = shown.Replacements != box.Replacements();
    const std::string_view added = std::string_view(box.Text()).substr(replaced ? 0 : shown.Bytes);
    shown.Replacements = box.Replacements();
    shown.Bytes = box.Text().size();
    if (replaced) {
        page::ReplaceOutput(place, added);
    } else if (!added.empty()) {
        page::AppendOutput(place, added);
    }
    page::ShowOutput(place, box.Visible(), box.Caret() == box.Text().size());
}

void Mirror::CopyControl(page::Place place, Shown&, const ListBox& list) {
    page::ShowList(place, list);
}

void Mirror::CopyControl(page::Place place, Shown&, const Label& label) {
    page::ShowLabel(place, label);
}

void Mirror::CopyFocus() {
    const Form* const active = windows.Active;
    if (active == nullptr || !active->Visible || !active->Focused) return;
    page::ShowFocus({.Form = PlaceIn(windows.All, active), .Control = PlaceIn(active->Controls, *active->Focused)});
}

std::size_t Mirror::CountLines(const TextBox& box) {
    Build();
    for (std::size_t form = 0; form < windows.All.size(); ++form) {
        const auto& controls = windows.All[form]->Controls;
        const auto control = std::ranges::find_if(controls, [&box](const Control& each) {
            auto* const* candidate = std::get_if<TextBox*>(&each);
            return candidate != nullptr && *candidate == &box;
        });
        if (control == controls.end()) continue;
        CopyControls(static_cast<int>(form));
        return page::CountOutputLines({.Form = static_cast<int>(form), .Control = static_cast<int>(control - controls.begin())});
    }
    return 1;
}

}  // namespace ui::web
