#include "tests/random/mirror.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::uint64_t ChangesOf(const ui::Control& control) {
    return std::visit([](const auto* each) { return each->Changes(); }, control);
}

}  // namespace

Mirror::Mirror(const ui::Windows& windows) {
    for (const ui::Form* form : windows.All) {
        for (const ui::Control& control : form->Controls) copies.push_back({.Original = control, .Text = {}, .Entries = {}});
    }
    for (Copy& copy : copies) copy.Changes = ChangesOf(copy.Original) + 1;  // out of date
    Follow();
}

void Mirror::Follow() {
    for (Copy& copy : copies) {
        std::visit([&](const auto* each) { Follow(copy, *each); }, copy.Original);
        copy.Changes = ChangesOf(copy.Original);
    }
}

void Mirror::Follow(Copy& copy, const ui::TextBox& box) {
    if (copy.Changes != box.Changes()) {
        if (copy.Replacements != box.Replacements())
            copy.Text = box.Text();
        else
            copy.Text.append(box.Text(), std::min(copy.Text.size(), box.Text().size()));
        copy.Replacements = box.Replacements();
        copy.Caret = box.Caret();
    }
    EXPECT_EQ(copy.Text, box.Text());
    EXPECT_EQ(copy.Caret, box.Caret());
}

void Mirror::Follow(Copy& copy, const ui::ListBox& list) {
    if (copy.Changes != list.Changes()) {
        copy.Entries = list.Entries();
        copy.Selected = list.Selected();
    }
    EXPECT_EQ(copy.Entries, list.Entries());
    EXPECT_EQ(copy.Selected, list.Selected());
    EXPECT_LT(list.Selected(), std::ssize(list.Entries()));
}

void Mirror::Follow(Copy& copy, const ui::Label& label) {
    if (copy.Changes != label.Changes()) copy.Text = label.Caption();
    EXPECT_EQ(copy.Text, label.Caption());
}

std::uint64_t Mirror::Changes() const {
    std::uint64_t sum = 0;
    for (const Copy& copy : copies) sum += ChangesOf(copy.Original);
    return sum;
}
