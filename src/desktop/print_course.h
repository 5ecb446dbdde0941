// SPDX-License-Identifier: MIT
// What a person sees while a long text goes to paper: a quiet box that counts the pages and can be cancelled. A short one is
// printed before anything has to be said.
#pragma once

#include <chrono>
#include <memory>

#include <QElapsedTimer>
#include <QString>

#include "desktop/windows/quiet_box.h"

class QProgressBar;
class QWidget;

namespace velmor::desktop {

class PrintCourse {
public:
    static constexpr std::chrono::milliseconds patience{400}; ///< after which a wait wants a word

    PrintCourse(QWidget* parent, const Stage& stage, std::chrono::milliseconds until = patience);
    ~PrintCourse();

    /// Page `page` of `pages` is on its way; before the pages are known both are 0. False when the person has cancelled.
    bool goesOn(int page, int pages);
    bool isCancelled() const { return cancelled_; }

private:
    void show();
    void tell(int page, int pages);

    QWidget* parent_;
    Stage stage_;
    QElapsedTimer time_;
    std::chrono::milliseconds next_; ///< when the screen is looked after again
    std::unique_ptr<QuietBox> box_;
    QLabel* text_ = nullptr;
    QProgressBar* bar_ = nullptr;
    bool cancelled_ = false;
};

} // namespace velmor::desktop
