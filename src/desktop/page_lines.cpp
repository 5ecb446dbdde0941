// SPDX-License-Identifier: MIT
// How many characters fit is guessed from the line before, then found by steps that double and halve.
#include "desktop/page_lines.h"

#include <algorithm>

namespace velmor::desktop {

namespace page_lines_detail {

constexpr qsizetype firstGuess = 80; ///< characters of a usual page

class Breaker {
public:
    Breaker(const QString& line, double width, const WidthOf& widthOf) : line_(line), width_(width), widthOf_(widthOf)
    {
        readIndent();
    }

    QStringList run(const std::function<bool()>& goesOn)
    {
        QStringList lines;
        while (!goesOn || goesOn()) {
            const qsizetype end = fitting(length(), width_);
            if (end == length() && fits(end, width_)) {
                lines.append(first(end));
                return lines;
            }
            const qsizetype cut = cutBefore(end);
            lines.append(first(cut));
            taken_ += cut - carried_.size();
            carried_ = indent_;
        }
        return {};
    }

private:
    /// What is left to be set: the carried indent and the rest of the line.
    qsizetype length() const { return carried_.size() + line_.size() - taken_; }
    QString first(qsizetype count) const
    {
        return carried_.left(count) + line_.mid(taken_, std::max<qsizetype>(0, count - carried_.size()));
    }
    bool fits(qsizetype count, double width) const { return widthOf_(first(count)) <= width; }

    /// The largest count of at most `most` characters that fit, at least one.
    qsizetype fitting(qsizetype most, double width)
    {
        if (most <= 1)
            return most;
        qsizetype low = 1;
        qsizetype high = std::clamp<qsizetype>(guess_, 1, most);
        for (qsizetype step = 1; high < most && fits(high, width); step *= 2) {
            low = high;
            high = std::min(most, high + step);
        }
        if (high == most && fits(high, width))
            return guess_ = most;
        for (qsizetype step = 1; low == 1 && high - step > 1; step *= 2) {
            if (fits(high - step, width))
                low = high - step;
            else
                high -= step;
        }
        while (low + 1 < high) {
            const qsizetype middle = (low + high) / 2;
            (fits(middle, width) ? low : high) = middle;
        }
        return guess_ = low;
    }

    // Behind the last blank that fits; something of the line itself must go, or it would never end.
    qsizetype cutBefore(qsizetype end) const
    {
        const QString fitted = first(end);
        const qsizetype blank = fitted.lastIndexOf(QLatin1Char(' '));
        return std::max(blank > indent_.size() ? blank + 1 : end, carried_.size() + 1);
    }

    /// The blanks with which the line begins, when they leave most of the page free.
    void readIndent()
    {
        qsizetype blanks = 0;
        while (blanks < line_.size() && line_[blanks] == QLatin1Char(' '))
            ++blanks;
        if (blanks > 0 && fitting(blanks, width_ / 3.0) == blanks && widthOf_(first(blanks)) < width_ / 3.0)
            indent_ = line_.left(blanks);
        guess_ = firstGuess;
    }

    const QString& line_;
    const double width_;
    const WidthOf& widthOf_;
    QString indent_;
    QString carried_; ///< the indent, from the second line on
    qsizetype taken_ = 0;
    qsizetype guess_ = firstGuess;
};

} // namespace page_lines_detail

QStringList brokenLine(const QString& line, double width, const WidthOf& widthOf, const std::function<bool()>& goesOn)
{
    return page_lines_detail::Breaker(line, width, widthOf).run(goesOn);
}

} // namespace velmor::desktop
