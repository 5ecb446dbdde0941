// SPDX-License-Identifier: MIT
#include "desktop/fire/stale_picture.h"

#include <algorithm>
#include <cstdlib>

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace velmor::test {

namespace stale_picture_detail {

constexpr int tolerance = 50; ///< of 255 in a channel: what is smoothed otherwise is no other picture

/// Of a pixel with its neighbours in the line: a letter may stand a quarter of a pixel beside itself, by rounding.
struct Ink {
    int red = 0;
    int green = 0;
    int blue = 0;
};

Ink inkAt(const QRgb* line, int x, int width)
{
    Ink ink;
    for (int near = std::max(0, x - 1); near <= std::min(width - 1, x + 1); ++near) {
        ink.red += qRed(line[near]);
        ink.green += qGreen(line[near]);
        ink.blue += qBlue(line[near]);
    }
    return ink;
}

bool differ(const Ink& one, const Ink& other)
{
    constexpr int allowed = 3 * tolerance;
    return std::abs(one.red - other.red) > allowed || std::abs(one.green - other.green) > allowed ||
           std::abs(one.blue - other.blue) > allowed;
}

/// The least box around what differs, and how many pixels do.
struct Difference {
    QRect box;
    QPoint first;
    int pixels = 0;
};

Difference between(const QImage& seen, const QImage& whole)
{
    Difference found;
    // A window may be larger than what the screen without a screen gives it.
    const QSize size = seen.size().boundedTo(whole.size());
    for (int y = 0; y < size.height(); ++y) {
        const auto* const seenLine = reinterpret_cast<const QRgb*>(seen.constScanLine(y));
        const auto* const wholeLine = reinterpret_cast<const QRgb*>(whole.constScanLine(y));
        if (std::equal(seenLine, seenLine + size.width(), wholeLine))
            continue;
        for (int x = 0; x < size.width(); ++x)
            if (differ(inkAt(seenLine, x, size.width()), inkAt(wholeLine, x, size.width()))) {
                if (found.pixels++ == 0)
                    found.first = {x, y};
                found.box |= QRect(x, y, 1, 1);
            }
    }
    return found;
}

/// From the outside to the inside.
std::string pathOf(const QWidget* widget)
{
    std::string path;
    for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget())
        path = " / " + std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString() + path;
    return path;
}

} // namespace stale_picture_detail

std::string stalePictureOf(QWidget& window)
{
    using namespace stale_picture_detail;
    QEvent painting(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &painting);
    const QImage seen = window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    const QImage whole = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const std::string name = window.objectName().toStdString();
    const Difference found = between(seen, whole);
    if (found.pixels == 0)
        return {};
    const QRect& box = found.box;
    return "the picture of " + name + " is stale in " + std::to_string(found.pixels) + " pixels, " +
           std::to_string(box.width()) + " by " + std::to_string(box.height()) + " at " + std::to_string(box.left()) +
           ", " + std::to_string(box.top()) + pathOf(window.childAt(found.first));
}

} // namespace velmor::test
