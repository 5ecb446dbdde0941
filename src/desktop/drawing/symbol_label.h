// SPDX-License-Identifier: MIT
// Names such as "R_b1" set as in a textbook: italic letters, upright subscript, upright figures. Knows type, not drawings.
#pragma once

#include <string_view>
#include <vector>

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace velmor::desktop {

/// One run of letters of one font.
struct LabelRun {
    QString text;
    QFont font;
    double offset = 0.0; ///< from the label's start
    double lowered = 0.0;
};

/// A label ready to be painted: its runs and its size.
struct SymbolLabel {
    std::vector<LabelRun> runs;
    double width = 0.0;
    double capHeight = 0.0; ///< of its letters
    double ascent = 0.0;    ///< highest ink over the baseline
    double descent = 0.0;   ///< lowest ink under it
};

/// Sets `name` in letters of `pixels`. What follows "_" up to a blank or an operator is the subscript; "/\" is written as a
/// delta, "'" as a prime; words after the first and figures are upright.
SymbolLabel setLabel(std::string_view name, double pixels);

/// Sets plain upright text of one line in the same type.
SymbolLabel setUpright(const QString& text, double pixels);

/// Sets plain text of one line in the type of buttons and headings.
SymbolLabel setCaptionLine(const QString& text, double pixels);

/// Appends `next` after `label` with a gap.
void append(SymbolLabel& label, const SymbolLabel& next, double gap);

/// Paints a label with the start of its baseline at `baseline`, in the painter's pen.
void drawLabel(QPainter& painter, const SymbolLabel& label, QPointF baseline);

} // namespace velmor::desktop
