// SPDX-License-Identifier: MIT
// Names are set as a textbook sets them.
#include "desktop/drawing/symbol_label.h"

#include <string>

#include <QFontInfo>

#include <gtest/gtest.h>

#include "desktop/drawing/typefaces.h"

using namespace velmor::desktop;

namespace symbol_label_tests {

/// Runs in one line: italic as /x/, lowered as _x_, upright bare.
std::string told(const SymbolLabel& label)
{
    std::string text;
    for (const LabelRun& run : label.runs) {
        const char* mark = run.lowered > 0.0 ? "_" : run.font.italic() ? "/" : "";
        text += mark + run.text.toStdString() + mark;
    }
    return text;
}

} // namespace symbol_label_tests

using namespace symbol_label_tests;

TEST(SymbolLabel, SetsTheLetterItalicAndTheSubscriptUprightBelow)
{
    const SymbolLabel label = setLabel("R_b1", 30.0);
    EXPECT_EQ(told(label), "/R/_b1_");
    EXPECT_EQ(label.runs[0].font.pixelSize(), 30);
    EXPECT_EQ(label.runs[1].font.pixelSize(), 20); // 68 % of 30, in whole pixels
    EXPECT_FALSE(label.runs[1].font.italic());
    EXPECT_DOUBLE_EQ(label.runs[1].lowered, 6.0); // a fifth of 30
    EXPECT_GT(label.runs[1].offset, 0.0);
}

TEST(SymbolLabel, SetsFiguresAndLaterWordsUpright)
{
    EXPECT_EQ(told(setLabel("Q1", 20.0)), "/Q/1");
    EXPECT_EQ(told(setLabel("V_CC = 12 V", 20.0)), "/V/_CC_ = 12 V");
    EXPECT_EQ(told(setLabel("r'_e = 25 mV / Q_Ic", 20.0)), "/r/\u2032_e_ = 25 mV / /Q/_Ic_");
    EXPECT_EQ(told(setLabel("R_b1 // R_b2", 20.0)), "/R/_b1_ // /R/_b2_");
}

TEST(SymbolLabel, WritesDeltaAndMinusAsSuch)
{
    EXPECT_EQ(told(setLabel("%/\\Q_Ic", 20.0)), "%\u0394/Q/_Ic_");
    EXPECT_EQ(told(setLabel("-E_s", 20.0)), "\u2212/E/_s_");
}

TEST(SymbolLabel, ReadsNoMarkup)
{
    EXPECT_EQ(told(setUpright(QStringLiteral("<b>1</b> & 2 &amp;"), 20.0)), "<b>1</b> & 2 &amp;");
    EXPECT_EQ(told(setLabel("_", 20.0)), "_");
    EXPECT_EQ(told(setLabel("", 20.0)), "");
}

TEST(SymbolLabel, GrowsWithItsLetters)
{
    const SymbolLabel small = setLabel("R_b1", 15.0);
    const SymbolLabel large = setLabel("R_b1", 60.0);
    EXPECT_NEAR(large.width / small.width, 4.0, 0.25);
    EXPECT_GT(small.capHeight, 8.0);
    EXPECT_LT(small.capHeight, 12.0);
}

TEST(SymbolLabel, FindsTheFamilyItAsksFor)
{
    EXPECT_EQ(QFontInfo(drawingFont(20.0, true)).family().toStdString(), drawingFamily().toStdString());
    EXPECT_TRUE(QFontInfo(drawingFont(20.0, true)).italic());
}
