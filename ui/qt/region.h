// The rounded shape of a window.
#pragma once

#include <QRegion>

#include "ui/controls.h"

namespace ui::qt {

// What the region shows of the client area, in its own pixels. The region counts from the corner of a window with a frame of
// 3 pixels and a title bar that ends at 23; the frame itself is the window manager's.
QRegion ClientRegion(const RoundRegion& region, const QSize& client);

}  // namespace ui::qt
