// What screen readers are told of the controls that Qt does not know: labels, the areas that take clicks, lists and their entries.
#pragma once

namespace ui::qt {

// Once, before the first window.
void InstallAccessibility();

}  // namespace ui::qt
