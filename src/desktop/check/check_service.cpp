// SPDX-License-Identifier: MIT
#include "desktop/check/check_service.h"

#include <algorithm>
#include <exception>
#include <utility>

#include <QMetaObject>

namespace velmor::desktop {

namespace check_service_detail {

/// Two at once keep a wave in step with a slider that is being drawn; more would only wait for each other.
constexpr std::size_t mostSwings = 2;

template <class Ask>
auto unlessItFails(Ask ask) -> decltype(ask())
{
    try {
        return ask();
    } catch (const std::exception&) { // no room for a file, no memory: the window says that it failed
        return {};
    }
}

} // namespace check_service_detail

using namespace check_service_detail;

CheckService::CheckService(std::string simulator, std::chrono::milliseconds limit)
    : simulator_(std::move(simulator)), limit_(limit)
{}

CheckService::~CheckService()
{
    stop();
}

/// `work` runs in a thread of its own and gives what is to be done in the program's thread when it is through.
template <class Work>
void CheckService::start(bool isCheck, Work work)
{
    const unsigned number = ++started_;
    runs_.push_back({number, isCheck, {}});
    runs_.back().thread = std::jthread(
        [this, number, work = std::move(work), simulator = simulator_, limit = limit_](std::stop_token stop) {
            check::Ngspice ngspice(simulator, limit, std::move(stop));
            auto deliver = work(ngspice, number);
            QMetaObject::invokeMethod(
                this,
                [this, number, deliver = std::move(deliver)] {
                    ended(number);
                    deliver();
                },
                Qt::QueuedConnection);
        });
}

void CheckService::begin(const check::Design& design, check::Run run)
{
    stop();
    shownCheck_ = started_ + 1;
    start(true, [this, design, run](check::Simulator& simulator, unsigned number) {
        check::Check result = unlessItFails([&] { return check::checkDesign(design, simulator, run); });
        return [this, number, result = std::move(result)] {
            if (number == shownCheck_ && checked)
                checked(result);
        };
    });
}

void CheckService::swing(const check::Design& design, double drive)
{
    if (swings() < mostSwings)
        startSwing({design, drive});
    else
        next_ = Wish{design, drive};
}

void CheckService::startSwing(Wish wish)
{
    start(false, [this, wish = std::move(wish), whole = shownCheck_](check::Simulator& simulator, unsigned number) {
        check::Swing result = unlessItFails([&] { return check::swingOf(wish.design, simulator, wish.drive); });
        return [this, number, whole, result = std::move(result)] {
            const bool counts = whole == shownCheck_ && number > latestSwing_;
            if (!counts)
                return;
            latestSwing_ = number;
            if (swung)
                swung(result);
        };
    });
}

// What is on its way is told to stop and not waited for; its result comes to nothing.
void CheckService::stop()
{
    next_.reset();
    shownCheck_ = 0;
    for (Run& run : runs_)
        run.thread.request_stop();
}

void CheckService::ended(unsigned number)
{
    std::erase_if(runs_, [number](const Run& run) { return run.number == number; });
    if (next_ && swings() < mostSwings)
        startSwing(*std::exchange(next_, std::nullopt));
}

std::size_t CheckService::swings() const
{
    return static_cast<std::size_t>(std::count_if(runs_.begin(), runs_.end(), [](const Run& run) {
        return !run.isCheck && !run.thread.get_stop_token().stop_requested();
    }));
}

} // namespace velmor::desktop
