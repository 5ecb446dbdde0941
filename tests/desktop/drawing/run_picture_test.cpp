// SPDX-License-Identifier: MIT
// A picture kept as runs is painted pixel by pixel as it was, wherever it is put and however fine the screen is.
#include <gtest/gtest.h>

#include <random>

#include <QPainter>

#include "desktop/drawing/run_picture.h"

namespace velmor::test::run_picture_test {

using desktop::RunPicture;

/// Paper with a ruled line, a frame at its very edge and a patch of letters' noise.
QImage drawing(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(250, 248, 240));
    QPainter painter(&picture);
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(QPointF(3.5, 7.25), QPointF(size.width() - 9.0, size.height() - 4.5));
    std::mt19937 random(4);
    for (int y = 20; y < 30; ++y)
        for (int x = 11; x < 31; ++x)
            picture.setPixel(x, y, 0xff000000 | (random() & 0xffffff));
    return picture;
}

QImage painted(const QImage& picture, QPoint place, double ratio)
{
    QImage ground(400, 300, QImage::Format_RGB32);
    ground.setDevicePixelRatio(ratio);
    ground.fill(Qt::darkGreen);
    QPainter painter(&ground);
    QImage fine = picture;
    fine.setDevicePixelRatio(ratio);
    RunPicture(fine).paint(painter, place);
    return ground;
}

TEST(RunPictureTest, isPaintedAsItWas)
{
    for (const double ratio : {1.0, 1.5, 2.0, 3.0})
        for (const QSize size : {QSize(120, 90), QSize(91, 32), QSize(64, 65), QSize(40, 31)}) {
            const QImage picture = drawing(size);
            const QImage ground = painted(picture, {10, 20}, ratio);
            const QPoint corner(qRound(10 * ratio), qRound(20 * ratio));
            EXPECT_EQ(ground.copy({corner, size}), picture) << size.width() << " wide, ratio " << ratio;
            EXPECT_EQ(ground.pixelColor(corner - QPoint(1, 0)), QColor(Qt::darkGreen));
            EXPECT_EQ(ground.pixelColor(corner + QPoint(size.width(), 0)), QColor(Qt::darkGreen));
            EXPECT_EQ(ground.pixelColor(corner + QPoint(0, size.height())), QColor(Qt::darkGreen));
        }
}

TEST(RunPictureTest, takesLittleRoomForPaperAndHardlyMoreForNoise)
{
    QImage noise(100, 100, QImage::Format_RGB32);
    std::mt19937 random(4);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, 0xff000000 | (random() & 0xffffff));
    EXPECT_LE(RunPicture(noise).bytes(), static_cast<std::size_t>(noise.sizeInBytes()) * 101 / 100);
    EXPECT_EQ(painted(noise, {}, 1.0).copy(0, 0, 100, 100), noise);
    noise.fill(Qt::white);
    EXPECT_EQ(RunPicture(noise).bytes(), 100U * 8U) << "a head and a pixel for each row";
    EXPECT_TRUE(RunPicture().isNull());
}

} // namespace velmor::test::run_picture_test
