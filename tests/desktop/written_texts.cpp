// SPDX-License-Identifier: MIT
#include "desktop/written_texts.h"

#include <QRectF>

#include "desktop/drawing/control_painter.h"

namespace velmor::test {

namespace written_texts_detail {

using host::Kind;
using host::Look;

bool isGround(const host::ControlRow& row)
{
    return row.look == Look::paper || row.look == Look::group || row.look == Look::invisible || row.kind == Kind::menu;
}

bool isWritten(const host::Window& window, const host::ControlRow& row)
{
    return window.visible(row.id) && !row.overlay && !isGround(row) && desktop::isPainted(window, row.id) &&
           window.text(row.id).find_first_not_of(" \n") != std::string::npos;
}

struct Written {
    const host::ControlRow* row;
    QRectF box;
};

} // namespace written_texts_detail

using namespace written_texts_detail;

std::vector<std::string> textComplaints(const host::Window& sheet, const desktop::View& view)
{
    std::vector<std::string> found;
    std::vector<Written> all;
    for (const host::ControlRow& row : sheet.spec().controls) {
        if (!isWritten(sheet, row))
            continue;
        if (!desktop::captionFits(sheet, row.id, view))
            found.push_back(std::string(row.name) + " does not fit: " + sheet.text(row.id));
        const QRectF box =
            row.kind == Kind::field ? desktop::boxOf(sheet, row.id, view) : desktop::captionBounds(sheet, row.id, view);
        all.push_back({&row, box.adjusted(1, 1, -1, -1)});
    }
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t k = i + 1; k < all.size(); ++k)
            if (all[i].box.intersects(all[k].box))
                found.push_back(std::string(all[i].row->name) + " lies over " + std::string(all[k].row->name));
    return found;
}

} // namespace velmor::test
