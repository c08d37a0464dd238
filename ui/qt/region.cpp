#include "ui/qt/region.h"

#include <cmath>

namespace ui::qt {

namespace {

constexpr QPoint ClientCorner(3, 23);

// How far an ellipse's corner cuts into the row that lies `row` pixels below its edge.
int Inset(int row, int ellipse) {
    const double radius = ellipse / 2.0;
    const double height = radius - row - 0.5;
    if (height <= 0) return 0;
    return static_cast<int>(std::lround(radius - std::sqrt(radius * radius - height * height)));
}

}  // namespace

QRegion ClientRegion(const RoundRegion& region, const QSize& client) {
    const QRect whole = QRect(QPoint(region.Left, region.Top), QPoint(region.Right - 1, region.Bottom - 1)).translated(-ClientCorner);
    QRegion rounded(whole);
    for (int row = 0; row < region.Ellipse / 2; ++row) {
        const int inset = Inset(row, region.Ellipse);
        for (const int y : {whole.top() + row, whole.bottom() - row}) {
            rounded -= QRect(whole.left(), y, inset, 1);
            rounded -= QRect(whole.right() - inset + 1, y, inset, 1);
        }
    }
    return rounded & QRect(QPoint(), client);
}

}  // namespace ui::qt
