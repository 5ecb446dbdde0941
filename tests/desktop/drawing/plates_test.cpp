// SPDX-License-Identifier: MIT
// A plate put together from a small one looks like the plate painted as one path, pixel by pixel.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "desktop/drawing/plates.h"

namespace velmor::test::plates_test {

QImage painted(bool together, const desktop::PlateLook& look, double ratio, const QRectF& box)
{
    QImage image(QSize(400, 300), QImage::Format_RGB32);
    image.fill(QColor(250, 250, 245));
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(3, 5);
    (together ? desktop::paintPlateOnScreen : desktop::paintPlate)(painter, box, look);
    return image;
}

int farthest(const QImage& one, const QImage& other)
{
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            most = std::max(
                {most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
        }
    return most;
}

TEST(PlatesTest, onScreenTheyLookAsPainted)
{
    const QColor ground(230, 240, 255);
    const QColor border(20, 60, 120);
    for (const double ratio : {1.0, 2.0}) {
        const double half = 0.5 / ratio;
        const QRectF large(10 + half, 8 + half, 120, 90);
        for (const desktop::PlateLook& look :
             {desktop::PlateLook{ground, border, 6.0, 1.0}, desktop::PlateLook{ground, QColor(), 4.0, 1.0},
              desktop::PlateLook{QColor(), border, 3.5, 2.0},
              desktop::PlateLook{QColor(10, 20, 30, 90), border, 0.0, 1.0}}) {
            EXPECT_LE(farthest(painted(true, look, ratio, large), painted(false, look, ratio, large)), 6) << ratio;
            const QRectF tiny(10 + half, 8 + half, 9, 7);
            EXPECT_LE(farthest(painted(true, look, ratio, tiny), painted(false, look, ratio, tiny)), 6) << ratio;
        }
    }
}

} // namespace velmor::test::plates_test
