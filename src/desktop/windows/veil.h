// SPDX-License-Identifier: MIT
// While a question waits, the windows behind it are calm: a veil lies over them, and only what the question speaks of is
// seen as before. The veil takes no mouse and no keyboard; the dialog in front is what blocks.
#pragma once

#include <memory>
#include <vector>

#include <QPointer>
#include <QRect>

#include "desktop/drawing/palette_of_inks.h"

class QWidget;

namespace velmor::desktop {

class Veils final {
public:
    /// `clear` in screen coordinates; empty for none.
    Veils(const std::vector<QWidget*>& windows, const QRect& clear, const Inks& inks);
    ~Veils();
    Veils(const Veils&) = delete;
    Veils& operator=(const Veils&) = delete;

private:
    std::vector<QPointer<QWidget>> veils_;
};

} // namespace velmor::desktop
