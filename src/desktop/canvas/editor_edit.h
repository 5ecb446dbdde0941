// SPDX-License-Identifier: MIT
// The text box of an editor. Caret, selection, deleting, copying and pasting go over the joints of a long line as if it were one
// block; everything else is the toolkit's.
#pragma once

#include "desktop/canvas/text_page.h"

namespace velmor::desktop {

class LongLines;

class EditorEdit final : public TextPage {
    Q_OBJECT

public:
    using TextPage::TextPage;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    LongLines* lines() const;
    void stepOver(const QKeyEvent& event);
    void goOn(int from, QTextCursor::MoveOperation step, QTextCursor::MoveMode mode);
    void select(int from, int to);
};

} // namespace velmor::desktop
