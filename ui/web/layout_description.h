// The windows' layouts as JSON, for the page to build its elements from.
#pragma once

#include <string>

#include "ui/windows.h"

namespace ui::web {

// An array of forms in the order of `Windows::All`, each with its controls in tab order; lengths in twips, fonts in pixels.
std::string DescribeLayouts(const Windows& windows);

}  // namespace ui::web
