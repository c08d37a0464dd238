// A desktop's view of the windows: it copies only what the change counters tell it to, and must never be out of date.
#pragma once

#include <string>
#include <vector>

#include "ui/windows.h"

class Mirror {
public:
    explicit Mirror(const ui::Windows& windows);

    void Follow();

    // Grows with every change of any control.
    std::uint64_t Changes() const;

private:
    struct Copy {
        ui::Control Original;
        std::uint64_t Changes = 0, Replacements = 0;
        std::string Text;  // or the caption
        std::vector<std::string> Entries;
        std::size_t Caret = 0;
        int Selected = -1;
    };

    static void Follow(Copy& copy, const ui::TextBox& box);
    static void Follow(Copy& copy, const ui::ListBox& list);
    static void Follow(Copy& copy, const ui::Label& label);

    std::vector<Copy> copies;
};
