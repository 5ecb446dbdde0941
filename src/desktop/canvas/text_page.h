// SPDX-License-Identifier: MIT
// A text of many lines whose letters are painted whole. Accents of capitals reach out of their line in many typefaces; the
// toolkit paints, of what has changed or come into sight, only the lines that lie in it. The page is never narrower than two
// scroll bars: beside less than one the toolkit would show and hide it without end.
#pragma once

#include <QPlainTextEdit>

namespace velmor::desktop {

class TextPage : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextPage(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int reach() const;
    void follow(const QRect& changed, int scrolled);
};

} // namespace velmor::desktop
