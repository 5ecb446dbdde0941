// SPDX-License-Identifier: MIT
#include "desktop/drawing/run_picture.h"

#include <algorithm>
#include <cmath>
#include <span>

#include <QPainter>

namespace velmor::desktop {

namespace run_picture_detail {

constexpr std::uint32_t severalMark = 0x8000'0000;
constexpr std::ptrdiff_t shortest = 4; ///< a shorter run is not worth its head
constexpr int stripRows = 16;          ///< of logical pixels

const std::uint32_t* endOfRun(const std::uint32_t* from, const std::uint32_t* end)
{
    return std::find_if(from, end, [from](std::uint32_t pixel) { return pixel != *from; });
}

/// Writes one row over the ground and returns the head of the next.
const std::uint32_t* writeRow(const std::uint32_t* head, std::span<std::uint32_t> row, std::uint32_t ground)
{
    for (std::uint32_t* to = row.data(); to != row.data() + row.size();) {
        const std::uint32_t count = *head & ~severalMark;
        const bool several = (*head++ & severalMark) != 0;
        if (several)
            std::copy_n(head, count, to);
        else if (*head != ground)
            std::fill_n(to, count, *head);
        head += several ? count : 1;
        to += count;
    }
    return head;
}

} // namespace run_picture_detail

using namespace run_picture_detail;

RunPicture::RunPicture(const QImage& picture) : size_(picture.size()), ratio_(picture.devicePixelRatio())
{
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    ground_ = pixels.isNull() ? 0 : pixels.pixel(0, 0);
    for (int y = 0; y < pixels.height(); ++y)
        addRow(reinterpret_cast<const std::uint32_t*>(pixels.constScanLine(y)));
    runs_.shrink_to_fit();
}

void RunPicture::addRow(const std::uint32_t* pixels)
{
    const std::uint32_t* const end = pixels + size_.width();
    const std::uint32_t* different = pixels; // not written yet
    const auto writeDifferent = [&](const std::uint32_t* upTo) {
        if (different != upTo) {
            runs_.push_back(static_cast<std::uint32_t>(upTo - different) | severalMark);
            runs_.insert(runs_.end(), different, upTo);
        }
    };
    for (const std::uint32_t* run = pixels; run != end;) {
        const std::uint32_t* const next = endOfRun(run, end);
        if (next - run >= shortest) {
            writeDifferent(run);
            runs_.push_back(static_cast<std::uint32_t>(next - run));
            runs_.push_back(*run);
            different = next;
        }
        run = next;
    }
    writeDifferent(end);
}

void RunPicture::paint(QPainter& painter, QPoint place) const
{
    // Strips begin at whole logical pixels: nothing is smoothed.
    const bool isWhole = ratio_ == std::floor(ratio_);
    const int rows = isWhole ? stripRows * static_cast<int>(ratio_) : size_.height();
    QImage strip(size_.width(), rows, QImage::Format_RGB32);
    strip.setDevicePixelRatio(ratio_);
    const std::uint32_t* head = runs_.data();
    for (int top = 0; top < size_.height(); top += rows) {
        const int height = std::min(rows, size_.height() - top);
        strip.fill(ground_);
        for (int y = 0; y < height; ++y)
            head = writeRow(
                head, {reinterpret_cast<std::uint32_t*>(strip.scanLine(y)), static_cast<std::size_t>(strip.width())},
                ground_);
        painter.drawImage(place + QPoint(0, isWhole ? top / static_cast<int>(ratio_) : 0), strip,
                          QRect(0, 0, strip.width(), height));
    }
}

} // namespace velmor::desktop
