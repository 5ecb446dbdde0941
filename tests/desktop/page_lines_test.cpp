// SPDX-License-Identifier: MIT
// Lines of a page: where they break, against a plain way that looks at every beginning of a line, and that a line of ten
// megabytes is measured in short stretches, counted and not timed.
#include "desktop/page_lines.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace velmor::test::page_lines_test {

using desktop::brokenLine;

/// Twelve for a letter, more for a wide one, half for a narrow one and for a blank.
double widthOf(const QString& text)
{
    double width = 0.0;
    for (const QChar letter : text)
        width += letter == QLatin1Char('W')                                 ? 20.0
                 : letter == QLatin1Char('i') || letter == QLatin1Char(' ') ? 6.0
                                                                            : 12.0;
    return width;
}

/// The longest beginning that fits, at least one character, found from the front.
qsizetype longestFitting(const QString& line, double width)
{
    qsizetype count = 1;
    while (count < line.size() && widthOf(line.left(count + 1)) <= width)
        ++count;
    return count;
}

QStringList plainWay(QString line, double width)
{
    const auto firstLetter =
        std::find_if(line.begin(), line.end(), [](QChar letter) { return letter != QLatin1Char(' '); });
    QString indent = line.left(firstLetter - line.begin());
    if (widthOf(indent) >= width / 3.0)
        indent.clear();
    QStringList lines;
    while (widthOf(line) > width) {
        const qsizetype most = longestFitting(line, width);
        const qsizetype blank = line.left(most).lastIndexOf(QLatin1Char(' '));
        const qsizetype end = blank > indent.size() ? blank + 1 : most;
        lines.append(line.left(end));
        line = indent + line.mid(end);
    }
    lines.append(line);
    return lines;
}

QString randomLine(std::mt19937& chance)
{
    static const QString letters = QStringLiteral("aWi     bcdéñ");
    const auto below = [&](int count) { return static_cast<int>(chance() % static_cast<unsigned>(count)); };
    QString line(below(4) == 0 ? below(30) : 0, QLatin1Char(' '));
    const int length = below(5) == 0 ? below(2000) : below(200);
    const bool inOneWord = below(6) == 0;
    while (line.size() < length)
        line += inOneWord ? QLatin1Char('x') : letters[below(static_cast<int>(letters.size()))];
    return line;
}

TEST(PageLines, BreakWhereThePlainWayBreaks)
{
    std::mt19937 chance(7);
    for (int round = 0; round < 3000; ++round) {
        const QString line = randomLine(chance);
        const double width = 60.0 + static_cast<double>(chance() % 1500U);
        ASSERT_EQ(brokenLine(line, width, widthOf), plainWay(line, width)) << round << ", width " << width;
    }
}

TEST(PageLines, KeepEveryCharacterOfALine)
{
    const QString line = QStringLiteral("uno dos tres").repeated(400);
    EXPECT_EQ(brokenLine(line, 300.0, widthOf).join(QString()), line);
    EXPECT_EQ(brokenLine(QString(), 300.0, widthOf), QStringList{QString()});
}

TEST(PageLines, EndOnAPageNarrowerThanALetter)
{
    EXPECT_EQ(brokenLine(QStringLiteral("WW"), 1.0, widthOf).join(QString()), QStringLiteral("WW"));
    EXPECT_LE(brokenLine(QStringLiteral(" WWW"), 20.0, widthOf).size(), 5);
}

struct Measured {
    qint64 characters = 0;
    qsizetype longest = 0;
};

Measured measuring(const QString& line)
{
    Measured measured;
    brokenLine(line, 1200.0, [&](const QString& stretch) {
        measured.characters += stretch.size();
        measured.longest = std::max(measured.longest, stretch.size());
        return widthOf(stretch);
    });
    return measured;
}

TEST(PageLines, MeasureShortStretchesOfAnEndlessLineAndEachCharacterAFewTimes)
{
    constexpr qsizetype length = 10'000'000;
    const QString lines[] = {QString(length, QLatin1Char('x')), QString(length, QLatin1Char(' ')),
                             QStringLiteral("Wide and little words ").repeated(length / 22),
                             QStringLiteral("  y") + QString(length, QLatin1Char('i'))};
    for (const QString& line : lines) {
        const Measured measured = measuring(line);
        EXPECT_LT(measured.characters, 8 * line.size()) << line.left(30).toStdString();
        EXPECT_LT(measured.longest, 420) << "200 of the narrowest letters fill the page";
    }
}

} // namespace velmor::test::page_lines_test
