// SPDX-License-Identifier: MIT
// A verdict as a sign: its form says it, not its colour alone.
#pragma once

#include <QColor>
#include <QRectF>

#include "check/check.h"
#include "desktop/drawing/palette_of_inks.h"

class QPainter;

namespace velmor::desktop {

void paintJudgementSign(QPainter& painter, const QRectF& box, check::Judgement judgement, const Inks& inks);
QColor judgementInk(check::Judgement judgement, const Inks& inks);

} // namespace velmor::desktop
