// SPDX-License-Identifier: MIT
// A picture kept as runs of equal pixels. A drawing is mostly paper: it takes a tenth of the room, and is painted from there at
// least as fast as from its pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QImage>

class QPainter;

namespace velmor::desktop {

class RunPicture {
public:
    RunPicture() = default;
    /// Of an opaque picture, with its ratio of the device's pixels to logical ones.
    explicit RunPicture(const QImage& picture);

    /// Pixel by pixel, with its upper left corner at the place.
    void paint(QPainter& painter, QPoint place) const;
    bool isNull() const { return size_.isEmpty(); }
    std::size_t bytes() const { return runs_.capacity() * sizeof(std::uint32_t); }

private:
    void addRow(const std::uint32_t* pixels);

    QSize size_; ///< in the device's pixels
    double ratio_ = 1.0;
    std::uint32_t ground_ = 0; ///< the pixel in the corner; most of a drawing is paper
    /// Row by row, heads and what belongs to them: how often the one pixel that follows is repeated, or, with `severalMark`, how
    /// many pixels follow.
    std::vector<std::uint32_t> runs_;
};

} // namespace velmor::desktop
