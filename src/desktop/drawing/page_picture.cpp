// SPDX-License-Identifier: MIT
#include "desktop/drawing/page_picture.h"

#include <algorithm>

#include <QPainter>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/schematic_painter.h"

namespace velmor::desktop {

namespace page_picture_detail {

constexpr double fill = 0.86;   ///< of the place
constexpr double boldest = 3.2; ///< times the weight of a sheet's lines

} // namespace page_picture_detail

bool isPagePicture(const host::Window& window, host::Handle control)
{
    const host::ControlRow& row = window.row(control);
    return window.role() == host::Role::mainWindow && row.kind == host::Kind::image && row.look == host::Look::paper &&
           !row.drawing.empty();
}

void paintPagePicture(QPainter& painter, const host::Window& window, host::Handle control, const View& view)
{
    const QRectF place = boxOf(window, control, view);
    const QRectF small = boundsOfMarks(window, window.drawing(control), QPointF(), view);
    if (small.isEmpty() || place.isEmpty())
        return;
    const double fitting = std::min(place.width() / small.width(), place.height() / small.height());
    const double factor = std::min(page_picture_detail::fill * fitting, page_picture_detail::boldest);
    View large = view;
    large.pixelsPerTwip *= factor;
    const QRectF bounds = boundsOfMarks(window, window.drawing(control), QPointF(), large);
    paintMarks(painter, window, window.drawing(control), place.center() - bounds.center(), large);
}

} // namespace velmor::desktop
