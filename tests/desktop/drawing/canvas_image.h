// SPDX-License-Identifier: MIT
// A picture to paint on and to look into, pixel by pixel.
#pragma once

#include <span>

#include <QImage>
#include <QPainter>
#include <QRect>

#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/schematic_painter.h"

namespace velmor::test {

/// A view at so many times 100 %.
inline desktop::View viewAt(double scale, const desktop::Inks& inks = desktop::lightInks())
{
    desktop::View view;
    view.pixelsPerTwip = scale / desktop::twipsPerUnit;
    view.inks = &inks;
    return view;
}

/// An empty sheet of paper of so many device pixels.
inline QImage paperImage(QSize pixels, const desktop::Inks& inks = desktop::lightInks(), double ratio = 1.0)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(inks.paper);
    return image;
}

inline QImage imageOfMarks(const host::Window& window, std::span<const host::Mark> marks, double scale,
                           double ratio = 1.0, QPointF origin = {}, QSize pixels = {400, 400})
{
    const desktop::View view = viewAt(scale);
    QImage image = paperImage(pixels, *view.inks, ratio);
    QPainter painter(&image);
    desktop::paintMarks(painter, window, marks, origin, view);
    return image;
}

inline QImage imageOfControl(const host::Window& window, host::Handle control, const desktop::View& view)
{
    const QRect bounds = desktop::inkBounds(window, control, view).toAlignedRect();
    QImage image = paperImage(bounds.size() + QSize(bounds.left() + 20, bounds.top() + 20), *view.inks);
    QPainter painter(&image);
    desktop::paintControl(painter, window, control, view);
    return image;
}

/// The box of all pixels that are not the first colour given.
inline QRect inkedBox(const QImage& image, const QColor& paper)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != paper.rgb())
                box |= QRect(x, y, 1, 1);
    return box;
}

/// How many pixels are not paper.
inline int inkedPixels(const QImage& image, const QColor& paper)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != paper.rgb() ? 1 : 0;
    return count;
}

} // namespace velmor::test
