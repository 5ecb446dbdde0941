// SPDX-License-Identifier: MIT
// The quiet line of the main window: work that was left is still here, to be opened, dropped, or left for later. It takes no
// keyboard; its buttons have letters.
#pragma once

#include <functional>

#include <QDateTime>
#include <QString>
#include <QWidget>

#include "desktop/drawing/palette_of_inks.h"

class QLabel;
class QPushButton;

namespace velmor::desktop {

/// What is offered, and from when its latest part is.
struct OfferedWork {
    int designs = 0;
    int texts = 0;
    QDateTime time{};
};

/// Where dropped work lies, and until when.
struct DroppedWork {
    QString folder{};
    QDate until{};
};

QString sentenceOf(const OfferedWork& work, bool english);
QString sentenceOf(const DroppedWork& work, bool english);

class OfferLine final : public QWidget {
public:
    enum class Choice { open, drop, later };

    OfferLine(const Inks& inks, bool english, QWidget* parent);

    void offer(const OfferedWork& work);
    /// Says where it lies; the line goes with the last button.
    void tellDropped(const DroppedWork& work);
    void speak(bool english);
    void setInks(const Inks& inks);
    std::function<void(Choice)> chosen;

private:
    QPushButton* addButton(Choice choice);
    void write();

    bool english_;
    bool dropped_ = false;
    OfferedWork offered_;
    DroppedWork lies_;
    QLabel* text_;
    QPushButton* open_;
    QPushButton* drop_;
    QPushButton* later_;
};

} // namespace velmor::desktop
