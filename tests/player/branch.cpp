// SPDX-License-Identifier: MIT
// Going on with a game in a second program that was opened from texts. All that a player knows is copied as it is; what
// the program knows goes through its windows' states alone.
#include "player/player.h"

#include <algorithm>

#include "host/state_text.h"
#include "host/window_state.h"

namespace velmor::player {

std::unique_ptr<Player> Player::branched(std::string& problem)
{
    if (engine_ == nullptr || engine_->ended() || !fault_.empty() || screen_->popupOwner != nullptr)
        return nullptr;
    engine_->forgetSteps(); // what was opened from a copy has none
    auto twin = std::make_unique<Player>(program_, game_, ground_);
    return twin->goOnWith(*this, problem) ? std::move(twin) : nullptr;
}

bool Player::goOnWith(const Player& other, std::string& problem)
{
    chance_ = other.chance_;
    coverage_ = other.coverage_;
    settings_ = other.settings_;
    mood_ = other.mood_;
    moodLeft_ = other.moodLeft_;
    makeProgram();
    events_ = other.events_;
    screen_->goOnWith(*other.screen_);
    engine_->values() = other.engine_->values();
    const host::Place area = other.engine_->clientArea();
    engine_->setClientArea(area.width, area.height);
    return openFrom(*other.engine_, problem);
}

bool Player::openFrom(const host::Engine& engine, std::string& problem)
{
    std::vector<host::WindowState> states;
    for (host::Window* window : engine.windows()) {
        std::optional<host::WindowState> state = engine.stateOf(*window);
        if (!state) {
            problem = std::string(window->name()) + " cannot be copied";
            return false;
        }
        state->longTexts = host::longTextsOf(*window);
        const std::string text = host::stateText(*state);
        std::optional<host::WindowState> read = host::readState(text, *engine_);
        if (!read || !(*read == *state)) {
            problem = (read ? "read otherwise than written:\n" : "not read:\n") + text;
            return false;
        }
        states.push_back(std::move(*read));
    }
    for (const host::Window* window : engine_->open(states)) {
        if (window == nullptr) {
            problem = "a window was not opened";
            return false;
        }
        order_.adopt(*window);
        newestWindow_ = std::max(newestWindow_, window->serial());
    }
    return true;
}

} // namespace velmor::player
