// SPDX-License-Identifier: MIT
// Pictures of sheets as they come into the world. The second new sheet of a kind and size is kept as a picture, and the next
// ones are that picture: a clone or a fifth sheet is there at once. Knows what a sheet is painted from, not how.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include <QTimer>

#include "desktop/drawing/run_picture.h"
#include "desktop/drawing/view.h"
#include "host/window_state.h"

namespace velmor::desktop {

/// What a sheet is painted from, but for where it lies: equal faces look equal.
struct SheetFace {
    host::WindowState state{};   ///< controls and the field in hand
    std::vector<bool> widgets{}; ///< by control: a widget, which paints itself
    host::Place part{};          ///< of the window that is painted, in twips: what stands above may be shown elsewhere
    double pixelsPerTwip = 0.0;
    double pixelRatio = 1.0; ///< device's pixels in a logical one
    const Inks* inks = nullptr;
    std::int16_t languageIsEnglish = 0;
    friend bool operator==(const SheetFace&, const SheetFace&) = default;
};

/// The face of that part of a window, looked at so; `widgets` by control.
SheetFace faceOf(const host::Window& window, const host::Place& part, const View& view, double pixelRatio,
                 std::vector<bool> widgets);

class FirstPictures {
public:
    static constexpr std::size_t mostBytes = std::size_t{8} << 20;
    static constexpr std::size_t mostFaces = 12;
    static constexpr int kept = 10'000; ///< milliseconds after the last new sheet

    FirstPictures();

    /// The picture of a sheet with that face; null when there is none yet.
    const RunPicture* find(const SheetFace& face);
    /// True when such a face has been asked for before: the next one would be glad of a picture. It is remembered.
    bool returns(const SheetFace& face);
    void keep(const SheetFace& face, RunPicture picture);
    std::size_t pictures() const;

private:
    struct Entry {
        SheetFace face;
        RunPicture picture;
    };
    std::deque<Entry>::iterator entryOf(const SheetFace& face);
    std::size_t bytes() const;

    std::deque<Entry> entries_; ///< the latest last
    QTimer forgetting_;
};

} // namespace velmor::desktop
