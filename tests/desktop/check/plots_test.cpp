// SPDX-License-Identifier: MIT
// The plots of a check: no text of theirs lies on another, also on a low and narrow paper. They are painted into a drawing whose
// texts can be read back with their places.
#include <cmath>
#include <map>

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "desktop/check/plots.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::test::plots_test {

constexpr double letters = 11;

/// `gain`: of the output, whose peak is 2.46 V, over the input.
desktop::Checked checkedWave(double gain = 0.985)
{
    desktop::Checked checked;
    checked.design.fo = 20;
    checked.result.ceilings = {.known = true, .cutOffAbove = true, .cutOff = 4.96, .saturation = 5.86};
    constexpr int samples = 400;
    check::Swing swing{.peakToPeak = 4.92, .distortion = 0.07};
    swing.input = swing.output = {.step = 2e-3 / samples, .cycles = 2};
    for (int i = 0; i < samples; ++i) {
        swing.input.values.push_back(2.46 / gain * std::sin(4 * M_PI * i / samples));
        swing.output.values.push_back(-2.46 * std::sin(4 * M_PI * i / samples));
    }
    checked.result.swing = checked.swing = swing;
    checked.result.response.frequency = {1, 10, 100, 1000, 1e5};
    checked.result.response.gain = {0.3, 0.9, 1, 1, 1};
    return checked;
}

/// Each text of the plot and the box that its letters fill.
std::map<QString, QRectF> textsOf(const desktop::Plot& plot, QSizeF size, bool english)
{
    QBuffer drawing;
    QSvgGenerator generator;
    generator.setOutputDevice(&drawing);
    generator.setSize(size.toSize());
    {
        QPainter painter(&generator);
        plot.paint(painter, QRectF({0, 0}, size), {&desktop::lightInks(), letters, english}, std::nullopt);
    }
    const QFontMetricsF metrics(desktop::interfaceFont(letters));
    std::map<QString, QRectF> texts;
    QXmlStreamReader reader(drawing.data());
    QPointF origin;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == QLatin1String("g") && attributes.hasAttribute(QLatin1String("transform"))) {
            const QStringList numbers = attributes.value(QLatin1String("transform"))
                                            .toString()
                                            .remove(QRegularExpression("[a-z()]"))
                                            .split(',');
            origin = numbers.size() == 6 ? QPointF(numbers[4].toDouble(), numbers[5].toDouble()) : QPointF();
        } else if (reader.name() == QLatin1String("text")) {
            const QPointF at(attributes.value(QLatin1String("x")).toDouble(),
                             attributes.value(QLatin1String("y")).toDouble());
            const QString text = reader.readElementText();
            texts[text] = metrics.tightBoundingRect(text).translated(origin + at);
        }
    }
    return texts;
}

/// Which lie on which.
std::vector<std::string> onEachOther(const std::map<QString, QRectF>& texts)
{
    std::vector<std::string> complaints;
    for (auto one = texts.begin(); one != texts.end(); ++one)
        for (auto other = std::next(one); other != texts.end(); ++other)
            if (one->second.adjusted(-1, -1, 1, 1).intersects(other->second))
                complaints.push_back(one->first.toStdString() + " on " + other->first.toStdString());
    return complaints;
}

TEST(PlotsTest, theLowestLevelStandsClearOfTheUnitBelowIt)
{
    const desktop::Checked checked = checkedWave();
    const auto texts = textsOf(desktop::GainPlot(checked), {560, 250}, false);
    ASSERT_TRUE(texts.contains(QString::fromUtf8("−18")));
    ASSERT_TRUE(texts.contains("Hz"));
    EXPECT_LE(texts.at(QString::fromUtf8("−18")).bottom() + 2, texts.at("Hz").top());
}

// A follower behind a generator of high resistance: 0.324 of the input arrives, and 0.2 is the round number below.
TEST(PlotsTest, anInputThatIsMuchLargerThanTheOutputIsDrawnSmaller)
{
    const desktop::Checked lost = checkedWave(0.324);
    EXPECT_TRUE(textsOf(desktop::WavePlot(lost), {340, 310}, false).contains(QString::fromUtf8("entrada × 0.2")));
    const desktop::Checked kept = checkedWave();
    EXPECT_TRUE(textsOf(desktop::WavePlot(kept), {340, 310}, false).contains(QString::fromUtf8("entrada × 1")));
}

TEST(PlotsTest, theLegendOfTheWaveLeavesTheNamesOfItsCeilingsClear)
{
    const desktop::Checked checked = checkedWave();
    for (const bool english : {false, true})
        for (const QSizeF size : {QSizeF(340, 310), QSizeF(230, 200), QSizeF(220, 170)}) {
            const auto texts = textsOf(desktop::WavePlot(checked), size, english);
            EXPECT_GE(texts.size(), 8U);
            for (const auto& [text, box] : texts)
                EXPECT_FALSE(text.endsWith(QChar(0x2026))) << text.toStdString() << " is cut off";
            EXPECT_EQ(onEachOther(texts), std::vector<std::string>{}) << size.width() << " x " << size.height();
        }
}

} // namespace velmor::test::plots_test
