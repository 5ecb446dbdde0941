// SPDX-License-Identifier: MIT
// The tools of all sheets: icon and caption lie inside their button, in both languages and at every size, apart from each
// other and large enough to be read.
#include <gtest/gtest.h>

#include "desktop/drawing/canvas_image.h"
#include "sheets/template_sheet.h"

#include "desktop/drawing/painted_sheet.h"

using namespace velmor;

namespace tools_tests {

using namespace template_sheet;

class SheetTools : public testing::TestWithParam<int> {
protected:
    test::PaintedProgram program;
    TemplateSheet sheet{program.engine.host()};
    const host::Handle tool = static_cast<host::Handle>(GetParam());
};

} // namespace tools_tests

using namespace tools_tests;

TEST_P(SheetTools, HoldTheirIconAboveTheirCaption)
{
    for (const double scale : {0.9, 1.0, 1.4, 2.0})
        for (const std::int16_t english : {std::int16_t{0}, host::trueValue}) {
            desktop::View view = test::viewAt(scale);
            view.languageIsEnglish = english;
            view.onButton = true;
            const QRectF box = desktop::boxOf(sheet, tool, view);
            const std::span<const host::Mark> marks = sheet.drawing(tool);
            const QRectF caption = desktop::labelBounds(sheet, marks.back(), box.topLeft(), view);
            const double margin = 3.0 * scale;
            EXPECT_TRUE(box.adjusted(margin, margin, -margin, -margin).contains(caption)) << scale;
            EXPECT_GE(caption.height(), 7.0) << "capitals of letters of 9 pixels or more";
            for (const host::Mark& icon : marks.first(marks.size() - 1)) {
                EXPECT_GE(icon.from.y, 5);
                EXPECT_LT(box.top() + icon.to.y * scale, caption.top() - scale);
            }
        }
}

INSTANTIATE_TEST_SUITE_P(All, SheetTools,
                         testing::Values(SSCommand1, Image3, SSCommand3, Image5, Image4, Image35, Image34));
