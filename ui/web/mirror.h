// Copies to the page what has changed in the windows' models since the last copy.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "ui/web/page_bridge.h"
#include "ui/windows.h"

namespace ui::web {

class Mirror {
public:
    explicit Mirror(Windows& mirrored) : windows(mirrored) {}

    // The page is built the first time. While a form is modal, or a message box is open (`blocked`), the others take no input.
    void Copy(const Form* modal, bool blocked);

    // Lines as the page displays them; the page is first given the text that it does not have yet.
    std::size_t CountLines(const TextBox& box);

private:
    struct Shown {
        std::optional<std::uint64_t> Changes;
        std::uint64_t Replacements = 0;
        std::size_t Bytes = 0;
    };

    void Build();
    void CopyControls(int form);
    void CopyControl(page::Place place, Shown& shown, const TextBox& box);
    void CopyControl(page::Place place, Shown& shown, const ListBox& list);
    void CopyControl(page::Place place, Shown& shown, const Label& label);
    void CopyFocus();

    Windows& windows;
    std::vector<std::vector<Shown>> shownControls;  // by form and control
    bool built = false;
};

}  // namespace ui::web
