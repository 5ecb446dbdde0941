// SPDX-License-Identifier: MIT
// A box of the program: a real dialog for window managers and screen readers, drawn in the program's own line: title, sign,
// text in a readable measure, buttons with their letters. What it asks and what the answers mean is not its business.
#pragma once

#include <vector>

#include <QDialog>
#include <QLabel>
#include <QRect>
#include <QRegion>

#include "desktop/drawing/palette_of_inks.h"
#include "host/screen.h"

class QHBoxLayout;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace velmor::desktop {

class TitleLine;

/// Where a box appears, and in which language and colours.
struct Stage {
    const Inks* inks = &lightInks();
    bool english = false;
    QRect room;          ///< of the window that asks, on the screen
    QRect inHand;        ///< the field in hand, on the screen; empty without one
    QRect behind;        ///< the field of the sheet behind a tool that asks, on the screen; empty without one
    QRegion answers;     ///< the values that came with the box, on the screen: it stands elsewhere where it can
    bool beside = false; ///< the box speaks of that field
};

/// A text to the letter, broken to a measure that is easily read; a word that is too long is broken too.
class BoxText final : public QLabel {
public:
    /// No wider than `most` pixels.
    BoxText(const QString& text, int most);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int measure() const;
    int heightFor(int width) const;

    int most_;
};

class QuietBox final : public QDialog {
public:
    QuietBox(QWidget* parent, const Stage& stage, const QString& title, host::BoxIcon icon = host::BoxIcon::none);

    /// What stands beside the sign, from top to bottom.
    void add(QWidget* part);
    QPushButton* addButton(const QString& caption);
    const std::vector<QPushButton*>& buttons() const { return buttons_; }
    QPushButton* defaultButton() const;
    /// The text of the first label.
    QString text() const;
    void setText(const QString& text);
    /// Takes its size and its place, at `wished` where it is given.
    void settle();
    void settleAt(QPoint wished);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QSize mostSize() const;
    QSize roomForText() const;
    void takeSize();
    bool isClear(QPoint corner) const;
    int hiddenAnswers(QPoint corner) const;
    void settleClear(QPoint wished);
    bool scroll(int key);

    Stage stage_;
    TitleLine* title_;
    QVBoxLayout* parts_;
    QHBoxLayout* row_;
    QLabel* text_ = nullptr;
    QScrollArea* scrolled_ = nullptr; ///< around a text that is taller than the screen
    std::vector<QPushButton*> buttons_;
};

} // namespace velmor::desktop
