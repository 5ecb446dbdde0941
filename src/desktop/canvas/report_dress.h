// SPDX-License-Identifier: MIT
// How a report is seen while it is written: its headings set off by weight, size and colour. The text itself stays as it is, and
// so does what is saved and printed. Knows texts and no window.
#pragma once

#include <QColor>
#include <QObject>

class QTextDocument;

namespace velmor::desktop {

/// What a line of a report is. A report begins with its title and the lines for name and date, up to the name of the design or,
/// where the title bears that, up to the first exercise; after that each line of one indent heads what follows.
enum class ReportLine : std::uint8_t { plain, title, heading };

/// True for a text that opens as the report of a design does.
bool isReport(const QTextDocument& document);
/// The name of the design that a report is about; empty for any other text.
QString designOf(const QTextDocument& document);

class ReportDress final : public QObject {
    Q_OBJECT

public:
    /// Dresses the document from now on.
    ReportDress(QTextDocument& document, const QColor& accent);

    /// The colours or the letters around have changed.
    void follow(const QColor& accent);
    const QColor& accent() const { return accent_; }
    /// What the line of that number is, counted from 0.
    ReportLine lineAt(int number) const;

private:
    void dress(int from, int length);
    void dressAll();

    QTextDocument& document_;
    QColor accent_;
};

} // namespace velmor::desktop
