// SPDX-License-Identifier: MIT
// PDF and SVG: whole files that other programs can read, with the texts as texts.
#include "desktop/drawing/drawing_export.h"

#include <cmath>
#include <vector>

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include "desktop/drawing/painted_sheet.h"

using namespace velmor;

namespace drawing_export_tests {

class Export : public testing::Test {
protected:
    QByteArray contentOf(const QString& name)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    test::PaintedProgram program;
};

} // namespace drawing_export_tests

using namespace drawing_export_tests;

TEST_F(Export, PdfIsWhole)
{
    ASSERT_TRUE(desktop::exportPdf(folder.filePath(QStringLiteral("a.pdf")), program.stage(), 0));
    const QByteArray content = contentOf(QStringLiteral("a.pdf"));
    EXPECT_TRUE(content.startsWith("%PDF-"));
    EXPECT_TRUE(content.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(content.contains("TeXGyre") || content.contains("/FontFile"));
}

TEST_F(Export, SvgIsWellFormedAndHoldsTheTexts)
{
    program.stage().setText(test::Voice, "a < b & \"c\"");
    program.engine.userRun([this] { program.engine.host().SetWindowCaption(program.stage(), "Etapa <1> & 2"); });
    ASSERT_TRUE(desktop::exportSvg(folder.filePath(QStringLiteral("a.svg")), program.stage(), 0));
    QXmlStreamReader reader(contentOf(QStringLiteral("a.svg")));
    QStringList texts;
    int paths = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("path"))
            ++paths;
        if (reader.isStartElement() &&
            (reader.name() == QLatin1String("text") || reader.name() == QLatin1String("title")))
            texts << reader.readElementText();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_GT(paths, 20);
    EXPECT_TRUE(texts.contains(QStringLiteral("Etapa <1> & 2")));
    EXPECT_TRUE(texts.contains(QStringLiteral("a < b & \"c\"")));
    EXPECT_TRUE(texts.contains(QStringLiteral("B1")));
    EXPECT_TRUE(texts.join(QString()).contains(QStringLiteral("3.3\u00A0kΩ")));
    EXPECT_TRUE(texts.contains(QStringLiteral("3.3"))) << "the field's own text";
}

TEST_F(Export, WhatIsPaleStaysPaleInTheSvg)
{
    // Rebuilds the opacity that a viewer gives to each path: its own times that of the groups around it.
    const auto palePaths = [this] {
        EXPECT_TRUE(desktop::exportSvg(folder.filePath(QStringLiteral("a.svg")), program.stage(), 0));
        QXmlStreamReader reader(contentOf(QStringLiteral("a.svg")));
        std::vector<double> around{1.0};
        int pale = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                const auto own = reader.attributes().value(QLatin1String("opacity"));
                around.push_back(around.back() * (own.isEmpty() ? 1.0 : own.toDouble()));
                const bool drawn = reader.name() == QLatin1String("path") ||
                                   reader.name() == QLatin1String("polyline") ||
                                   reader.name() == QLatin1String("polygon");
                pale += drawn && std::abs(around.back() - 0.45) < 0.01 ? 1 : 0;
            } else if (reader.isEndElement()) {
                around.pop_back();
            }
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        return pale;
    };
    EXPECT_GT(palePaths(), 0) << "the sign of the tool that is off";
    program.stage().setEnabled(test::ToolCalculator, true);
    EXPECT_EQ(palePaths(), 0);
}

TEST_F(Export, AFolderThatIsNotThereIsToldAndLeavesNothing)
{
    EXPECT_FALSE(desktop::exportPdf(folder.filePath(QStringLiteral("no/a.pdf")), program.stage(), 0));
    EXPECT_FALSE(desktop::exportSvg(folder.filePath(QStringLiteral("no/a.svg")), program.stage(), 0));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}
