// SPDX-License-Identifier: MIT
// Runs checks beside the program: the window never waits for the simulator. A check that is asked for anew ends the one before;
// of the slider's wishes the last one counts. Knows no window.
#pragma once

#include <chrono>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <thread>

#include <QObject>

#include "check/check.h"

namespace velmor::desktop {

class CheckService final : public QObject {
public:
    /// The path or name of the simulator; empty: the one that is installed.
    explicit CheckService(std::string simulator = {}, std::chrono::milliseconds limit = std::chrono::seconds(5));
    /// What still runs is ended.
    ~CheckService() override;

    void begin(const check::Design& design, check::Run run = check::Run::trimmed);
    /// The wave at another drive.
    void swing(const check::Design& design, double drive);
    void stop();
    /// Simulators at work.
    std::size_t running() const { return runs_.size(); }

    // Called in the program's thread.
    std::function<void(const check::Check&)> checked;
    std::function<void(const check::Swing&)> swung;

private:
    struct Wish {
        check::Design design;
        double drive = 1;
    };
    struct Run {
        unsigned number = 0;
        bool isCheck = false;
        std::jthread thread;
    };

    template <class Work>
    void start(bool isCheck, Work work);
    void ended(unsigned number);
    void startSwing(Wish wish);
    std::size_t swings() const;

    std::string simulator_;
    std::chrono::milliseconds limit_;
    std::list<Run> runs_;
    std::optional<Wish> next_; ///< waits for a place
    unsigned started_ = 0;
    unsigned shownCheck_ = 0;  ///< whose result counts
    unsigned latestSwing_ = 0; ///< the last one shown
};

} // namespace velmor::desktop
