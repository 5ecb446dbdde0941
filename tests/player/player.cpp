// SPDX-License-Identifier: MIT
// The course of a game: starting the program anew when it has ended, moods, checks after every event, and reports.
#include "player/player.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace velmor::player {

namespace player_detail {

constexpr std::size_t rememberedEvents = 40;
constexpr std::uint64_t fieldsLookedAt = 16; // every so many events
constexpr std::uint64_t designsLookedAt = 3;
constexpr int slotsWithoutEnd = 3000;
constexpr int questionsWithoutEnd = 300;

/// Thrown out of an event that calls slots without end; no error of the program, so that no slot swallows it.
struct Endless {};

} // namespace player_detail

Player::Player(const console::WalkedProgram& program, Game game, std::shared_ptr<Playground> ground)
    : program_(program), game_(std::move(game)), chance_(game_.seed), ground_(std::move(ground)),
      coverage_(program.catalogue)
{}

Player::~Player() = default;

void Player::makeProgram()
{
    using namespace player_detail;
    if (onProgram && engine_ != nullptr)
        onProgram(nullptr);
    failureKind_.clear();
    order_ = {};
    designChecks_.startAgain();
    engine_.reset();
    screen_ = std::make_unique<PlayerScreen>(chance_, *ground_);
    engine_ = std::make_unique<host::Engine>(program_.catalogue, *screen_, settings_);
    screen_->meanwhile = [this] { meanwhile(); };
    engine_->onSlot = [this](const host::Window& window, host::Handle control, host::Event event) {
        coverage_.slotRan(window, control, event);
        if (logged_)
            log_ += slotTitle(window.spec(), {control, event}) + "\n";
        if (orderFault_.empty())
            orderFault_ = order_.note(window, control, event);
        if (++slotsInEvent_ > slotsWithoutEnd)
            throw Endless();
    };
    engine_->onStep = [this](const host::Window& window) { order_.adopt(window); };
    engine_->onBox = [this](const host::MessageBox& box) {
        coverage_.boxShown(box);
        if (screen_->questions > questionsWithoutEnd)
            throw Endless();
    };
    engine_->setTrace([this](std::string_view line) {
        if (line.starts_with("failure "))
            failureKind_ = line.substr(8);
        if (logged_)
            log_.append(line).push_back('\n');
    });
    if (onProgram)
        onProgram(engine_.get());
    history_.clear();
    slotsInEvent_ = 0;
    newestWindow_ = 0;
}

std::string Player::takeLog()
{
    logged_ = true;
    return std::exchange(log_, {});
}

void Player::startProgram()
{
    coverage_.startAgain();
    makeProgram();
    if (chance_.in(60))
        program_.start(*engine_);
    engine_->loadMainWindow();
    engine_->values().LanguageIsEnglish = chance_.in(50) ? host::trueValue : std::int16_t{0};
}

void Player::endProgram()
{
    if (failureKind_.empty())
        coverage_.programEnded();
    else
        coverage_.programFailed(failureKind_, lastEvents());
}

bool Player::play(std::uint64_t events)
{
    const std::uint64_t last = events_ + events;
    while (events_ < last && fault_.empty()) {
        if (engine_ == nullptr || engine_->ended())
            startProgram();
        move();
        if (engine_->ended())
            endProgram();
    }
    return fault_.empty();
}

// Beside a tool there is little to design.
void Player::changeMood()
{
    const host::WindowSpec* target = game_.onlyWindow.empty() ? nullptr : engine_->specOf(game_.onlyWindow);
    const bool aroundATool = target != nullptr && target->role != host::Role::sheet && chance_.in(80);
    mood_ = aroundATool ? Mood::roam : chance_.in(40) ? Mood::design : chance_.in(35) ? Mood::defaults : Mood::roam;
    moodLeft_ = mood_ == Mood::roam ? chance_.between(10, 60) : chance_.between(30, 150);
}

// One move of the game; it may be several events, as typing a number is.
void Player::move()
{
    if (--moodLeft_ < 0)
        changeMood();
    const std::uint64_t before = events_;
    keepWindowsFew();
    if (fault_.empty() && !engine_->ended()) {
        openTarget();
        if (game_.straight)
            straightStep();
        else if (screen_->popupOwner != nullptr)
            usePopup();
        else if (mood_ == Mood::roam || modalWindow() != nullptr || chance_.in(6))
            roamStep();
        else
            designStep();
    }
    events_ += events_ == before ? 1 : 0; // a move may find nothing to do
}

void Player::keepWindowsFew()
{
    if (engine_->held().size() <= game_.windowCap)
        return;
    std::vector<host::Window*> closable = engine_->windows();
    std::erase_if(closable, [](const host::Window* window) {
        return window->role() == host::Role::mainWindow || window->role() == host::Role::palette;
    });
    if (!closable.empty())
        perform({.act = Act::close, .window = chance_.one(closable)});
}

void Player::perform(const Deed& deed)
{
    using namespace player_detail;
    if (!fault_.empty() || engine_->ended())
        return;
    ++events_;
    slotsInEvent_ = 0;
    screen_->questions = 0;
    history_.push_back({deed.act, deed.window == nullptr ? nullptr : &deed.window->spec(),
                        deed.window == nullptr ? 0 : deed.window->serial(), deed.control, deed.detail, deed.target,
                        deed.text});
    if (history_.size() > rememberedEvents)
        history_.pop_front();
    try {
        carryOut(deed);
        check();
        if (afterEvent && fault_.empty())
            afterEvent();
    } catch (const Endless&) {
        report("slots or boxes without end, the last in " + coverage_.lastSlot());
    } catch (const std::exception& problem) {
        report(std::string("an error came out of ") + coverage_.lastSlot() + ": " + problem.what());
    }
}

void Player::check()
{
    using player_detail::designsLookedAt;
    using player_detail::fieldsLookedAt;
    for (const std::unique_ptr<host::Window>& window : engine_->held())
        if (window->serial() > newestWindow_) {
            newestWindow_ = window->serial();
            coverage_.leaveOut(*window);
        }
    std::string fault = orderFault_;
    if (fault.empty() && !engine_->ended())
        fault = engineFault(*engine_);
    if (fault.empty())
        fault = textFault(*engine_);
    if (fault.empty() && events_ % fieldsLookedAt == 0)
        fault = fieldFault(*engine_);
    if (fault.empty() && !engine_->ended() && events_ % designsLookedAt == 0)
        fault = designChecks_.faultOf(*engine_);
    if (!fault.empty())
        report(fault);
}

void Player::report(const std::string& what)
{
    fault_ = what + "\n  seed " + std::to_string(game_.seed) +
             (game_.onlyWindow.empty() ? std::string() : ", window " + game_.onlyWindow) + ", event " +
             std::to_string(events_) + "; the last events:" + lastEvents();
}

std::string Player::lastEvents() const
{
    std::string events;
    for (const Remembered& event : history_)
        events += "\n    " + inWords(event);
    return events;
}

} // namespace velmor::player
