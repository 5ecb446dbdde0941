// SPDX-License-Identifier: MIT
// The search line of an editor: what is typed into it is marked wherever it stands in the text, the hit in hand is selected, and
// the search goes round in both directions. It knows the text box alone, no window and no engine.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "desktop/drawing/palette_of_inks.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velmor::desktop {

class SearchLine final : public QWidget {
public:
    enum class Way { forward, backward };

    SearchLine(QPlainTextEdit& text, const Inks& inks, bool english, QWidget* parent);

    /// Takes the keyboard; a stretch of one line that is selected in the text is what to look for.
    void open(bool replacing);
    /// Goes to the next hit; without anything to look for it opens.
    void go(Way way);
    void close();
    void speak(bool english);
    void setInks(const Inks& inks);
    bool hasKeyboard() const;
    /// Where the hits begin, in units of the text; those found so far while a long one is searched.
    const std::vector<int>& hits() const { return hits_; }

    /// Keys that are meant for the text, whichever of the two has the keyboard: to open, to save, to print.
    std::function<bool(const QKeyEvent&)> isOfText;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPushButton* addButton(const char* name);
    void layOut();
    void write();
    bool pressed(int key, Qt::KeyboardModifiers modifiers);
    void lookLater();
    void look();
    void lookOn();
    void lookBehind(int unit);
    void lookToTheEnd();
    void markHits();
    void markInSight();
    void tell();
    void step(Way way);
    std::pair<int, int> selected() const;
    void select(int hit);
    int hitInHand() const;
    void replace();
    void replaceAll();

    QPointer<QPlainTextEdit> text_;
    const QObject* editor_;   ///< the text, by which its events are known: it may be on its way out
    const QObject* viewport_; ///< its viewport, the same
    const Inks* inks_;
    bool english_;
    bool wrapped_ = false;
    bool marking_ = false;
    bool markAgain_ = false; ///< asked for while they were being put
    QString whole_;          ///< what is searched, while it is
    int at_ = 0;             ///< how far it has been searched
    std::vector<int> hits_;
    int length_ = 0; ///< of what the hits were found for
    QLineEdit* wanted_;
    QLineEdit* instead_;
    QLabel* told_;
    QWidget* replacing_;
    QPushButton* back_;
    QPushButton* on_;
    QPushButton* away_;
    QPushButton* one_;
    QPushButton* all_;
    QTimer later_;
    QTimer onward_;
};

} // namespace velmor::desktop
