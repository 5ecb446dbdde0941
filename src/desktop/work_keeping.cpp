// SPDX-License-Identifier: MIT
#include "desktop/work_keeping.h"

#include <utility>

#include <QDateTime>
#include <QDir>

#include "desktop/desktop_screen.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/offer_line.h"
#include "desktop/windows/window_keeper.h"

namespace velmor::desktop {

// A path that is not absolute counts as none.
keeping::Place WorkKeeping::usualPlace()
{
    QString states = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(states))
        states = QDir::homePath() + QStringLiteral("/.local/state");
    return {.folder = held(states + QStringLiteral("/velmor")),
            .now = [] { return static_cast<std::int64_t>(QDateTime::currentSecsSinceEpoch()); }};
}

WorkKeeping::WorkKeeping(host::Engine& engine, DesktopScreen& screen, keeping::Place place)
    : engine_(engine), screen_(screen), now_(place.now), keeper_(engine, std::move(place))
{
    timer_.setParent(this);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { work(); });
    keeper_.wake = [this] { timer_.start(delay); };
    // It may be in the middle of an event: the line changes when that is over.
    keeper_.offerChanged = [this] { QTimer::singleShot(0, this, [this] { showOffer(); }); };
}

WorkKeeping::~WorkKeeping()
{
    keeper_.wake = nullptr;
    keeper_.offerChanged = nullptr;
}

void WorkKeeping::look()
{
    if (!engine_.ended())
        keeper_.look();
}

// A long text is copied in slices between which keys and pictures have their turn.
void WorkKeeping::work()
{
    if (keeper_.work())
        timer_.start(0);
}

// The line is made when there is something to offer for the first time.
void WorkKeeping::showOffer()
{
    MainWindow* main = screen_.desk().closing ? nullptr : screen_.keeper().mainWindow();
    if (main == nullptr)
        return;
    const keeping::Offer offer = keeper_.offer();
    if (offer.empty())
        return main->showOfferLine(false);
    OfferLine& line = main->offerLine();
    line.chosen = [this](OfferLine::Choice choice) {
        switch (choice) {
        case OfferLine::Choice::open:
            return open();
        case OfferLine::Choice::drop:
            return drop();
        case OfferLine::Choice::later:
            return later();
        }
    };
    line.offer({offer.designs, offer.texts, QDateTime::fromSecsSinceEpoch(offer.time)});
    main->showOfferLine(true);
}

// The line goes first: what is opened is to stand in the room that stays, where it stood.
void WorkKeeping::open()
{
    screen_.keeper().mainWindow()->showOfferLine(false);
    if (!keeper_.openOffered())
        screen_.keeper().mainWindow()->showOfferLine(true);
}

void WorkKeeping::later()
{
    screen_.keeper().mainWindow()->showOfferLine(false);
}

void WorkKeeping::drop()
{
    const auto changed = std::exchange(keeper_.offerChanged, nullptr);
    keeper_.dropOffered();
    keeper_.offerChanged = changed;
    constexpr std::int64_t day = 24 * 60 * 60;
    const std::int64_t until = now_() + keeping::KeptFolder::daysOfDropped * day;
    screen_.keeper().mainWindow()->offerLine().tellDropped(
        {shown(keeper_.droppedFolder().string()), QDateTime::fromSecsSinceEpoch(until).date()});
}

} // namespace velmor::desktop
