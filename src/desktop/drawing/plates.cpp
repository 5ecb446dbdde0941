// SPDX-License-Identifier: MIT
#include "desktop/drawing/plates.h"

#include <algorithm>
#include <cmath>

#include <QHash>
#include <QImage>
#include <QPainter>

namespace velmor::desktop {

namespace plates {

struct Key {
    QRgb ground;
    QRgb border;
    int round; ///< in sixteenths of a device pixel, as the width
    int width;
    int ratio; ///< in hundredths
    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed = 0)
{
    return qHashMulti(seed, key.ground, key.border, key.round, key.width, key.ratio);
}

/// A plate of the smallest size: `corner` device pixels at each end and one between.
struct Small {
    QImage image;
    int corner = 0;
    int margin = 0; ///< what the border spreads beyond its middle line
};

Small makeSmall(const PlateLook& look, double ratio)
{
    Small small;
    small.margin = static_cast<int>(std::ceil(look.width * ratio / 2.0));
    small.corner = static_cast<int>(std::ceil((look.round + look.width) * ratio)) + small.margin + 1;
    const int side = 2 * small.corner + 1;
    small.image = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
    small.image.fill(Qt::transparent);
    QPainter painter(&small.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    const double start = (small.margin + 0.5) / ratio;
    const double length = (side - 2 * small.margin - 1) / ratio;
    paintPlate(painter, QRectF(start, start, length, length), look);
    return small;
}

const Small& smallOf(const PlateLook& look, double ratio)
{
    static QHash<Key, Small> known;
    const Key key{look.ground.isValid() ? look.ground.rgba() : 0, look.border.isValid() ? look.border.rgba() : 0,
                  static_cast<int>(look.round * ratio * 16.0), static_cast<int>(look.width * ratio * 16.0),
                  static_cast<int>(ratio * 100.0)};
    const auto found = known.constFind(key);
    if (found != known.constEnd())
        return *found;
    if (known.size() > 300)
        known.clear();
    return *known.insert(key, makeSmall(look, ratio));
}

/// Everything in device pixels from here on.
class Assembly {
public:
    Assembly(QPainter& painter, const Small& small, const QRect& box) : painter_(painter), small_(small), box_(box) {}

    void paint()
    {
        const int corner = small_.corner;
        const int far = corner + 1;
        corners(corner, far);
        for (int row = 0; row < small_.image.height();)
            row = stripe(row, true);
        for (int column = 0; column < small_.image.width();)
            column = stripe(column, false);
    }

private:
    void corners(int corner, int far)
    {
        const int right = box_.right() + 1 - corner;
        const int bottom = box_.bottom() + 1 - corner;
        painter_.drawImage(QPoint(box_.left(), box_.top()), small_.image, QRect(0, 0, corner, corner));
        painter_.drawImage(QPoint(right, box_.top()), small_.image, QRect(far, 0, corner, corner));
        painter_.drawImage(QPoint(box_.left(), bottom), small_.image, QRect(0, far, corner, corner));
        painter_.drawImage(QPoint(right, bottom), small_.image, QRect(far, far, corner, corner));
    }

    QColor at(int line, bool row) const
    {
        return row ? small_.image.pixelColor(small_.corner, line) : small_.image.pixelColor(line, small_.corner);
    }

    int placeOf(int line, bool row) const
    {
        const int start = row ? box_.top() : box_.left();
        const int length = row ? box_.height() : box_.width();
        return line <= small_.corner ? start + line : start + length - (small_.image.height() - line);
    }

    // Lines of one colour side by side; the middle line of the columns is left to the rows, which fill the whole middle.
    int stripe(int line, bool row)
    {
        const int middle = small_.corner;
        int next = line + 1;
        const bool isMiddle = line == middle;
        while (!isMiddle && next < small_.image.height() && next != middle && at(next, row) == at(line, row))
            ++next;
        if (isMiddle && !row)
            return next;
        const int from = placeOf(line, row);
        const int to = isMiddle ? placeOf(middle + 1, row) : placeOf(line, row) + (next - line);
        const QColor color = at(line, row);
        if (color.alpha() == 0 || to <= from)
            return next;
        const int corner = small_.corner;
        const QRect area = row ? QRect(box_.left() + corner, from, box_.width() - 2 * corner, to - from)
                               : QRect(from, box_.top() + corner, to - from, box_.height() - 2 * corner);
        painter_.fillRect(area, color);
        return next;
    }

    QPainter& painter_;
    const Small& small_;
    QRect box_;
};

} // namespace plates

void paintPlate(QPainter& painter, const QRectF& box, const PlateLook& look)
{
    painter.setPen(look.border.isValid() ? QPen(look.border, look.width) : QPen(Qt::NoPen));
    painter.setBrush(look.ground.isValid() ? QBrush(look.ground) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(box, look.round, look.round);
}

void paintPlateOnScreen(QPainter& painter, const QRectF& box, const PlateLook& look)
{
    const QTransform& device = painter.deviceTransform();
    const double ratio = device.m11();
    const bool upright = device.m12() == 0.0 && device.m21() == 0.0 && ratio > 0.0 && device.m22() == ratio;
    if (!upright) {
        paintPlate(painter, box, look);
        return;
    }
    const plates::Small& small = plates::smallOf(look, ratio);
    const QRectF line = device.mapRect(box);
    const int margin = small.margin;
    const QRect outer =
        QRect(QPoint(static_cast<int>(std::floor(line.left())), static_cast<int>(std::floor(line.top()))),
              QPoint(static_cast<int>(std::floor(line.right())), static_cast<int>(std::floor(line.bottom()))))
            .adjusted(-margin, -margin, margin, margin);
    if (outer.width() <= 2 * small.corner || outer.height() <= 2 * small.corner) {
        paintPlate(painter, box, look);
        return;
    }
    painter.save();
    painter.setWorldTransform(device.inverted() * painter.worldTransform());
    painter.setRenderHint(QPainter::Antialiasing, false);
    plates::Assembly(painter, small, outer).paint();
    painter.restore();
}

void fillFrame(QPainter& painter, const QRectF& box, double width, const QColor& color)
{
    const double between = box.height() - 2.0 * width;
    painter.fillRect(QRectF(box.left(), box.top(), box.width(), width), color);
    painter.fillRect(QRectF(box.left(), box.bottom() - width, box.width(), width), color);
    painter.fillRect(QRectF(box.left(), box.top() + width, width, between), color);
    painter.fillRect(QRectF(box.right() - width, box.top() + width, width, between), color);
}

} // namespace velmor::desktop
