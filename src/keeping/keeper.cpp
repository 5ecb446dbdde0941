// SPDX-License-Identifier: MIT
// A window is followed from the end of the event that has loaded it. It is worth keeping once it holds something unsaved, or
// what a person writes or chooses in it differs from how it began; then it stays so until it is saved or given up.
#include "keeping/keeper.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "host/state_change.h"
#include "host/state_text.h"

namespace velmor::keeping {

using host::Attribute;
using host::Kind;
using host::Window;
using host::WindowState;

namespace keeper_detail {

/// What a person writes or chooses; prompts, notes and places are not.
bool isWork(const host::WindowSpec& spec, const host::Key& key)
{
    if (key.control == host::noControl)
        return false;
    const bool field = spec.controls[key.control].kind == Kind::field;
    switch (key.attribute) {
    case Attribute::text:
    case Attribute::visible:
        return field;
    case Attribute::checked:
    case Attribute::selected:
        return true;
    default:
        return false;
    }
}

bool differInWork(const WindowState& one, const WindowState& other)
{
    const host::StateChange change = difference(one, other);
    const auto work = [&](const auto& changed) { return isWork(*one.spec, changed.key); };
    return std::any_of(change.numbers.begin(), change.numbers.end(), work) ||
           std::any_of(change.texts.begin(), change.texts.end(), work);
}

bool writesText(const Window& window)
{
    const auto& controls = window.spec().controls;
    return std::any_of(controls.begin(), controls.end(), [](const auto& row) { return row.kind == Kind::editor; });
}

host::Handle editorOf(const Window& window)
{
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == Kind::editor)
            return row.id;
    return host::noControl;
}

/// Numbered, so that files stand in the order in which their windows were made.
std::string fileName(unsigned number, std::string_view window)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "%06u-", number);
    return std::string(digits).append(window).append(".state");
}

} // namespace keeper_detail

using namespace keeper_detail;

Keeper::Keeper(host::Engine& engine, Place place)
    : engine_(engine), now_(place.now), folder_(std::move(place.folder), std::move(place.now)), errands_(place.inThread)
{
    engine_.setFollower(this);
}

Keeper::~Keeper()
{
    engine_.setFollower(nullptr);
    if (!finished_)
        keepAll();
    errands_.finish();
}

bool Keeper::follows(const Window& window)
{
    return window.isChild();
}

Keeper::Record& Keeper::recordOf(Window& window)
{
    Record& record = records_[&window];
    if (record.name.empty())
        record.name = fileName(++count_, window.name());
    return record;
}

void Keeper::copy(Window& window, Record& record)
{
    if (record.stands != nullptr && record.stirrings == window.stirrings())
        return;
    std::optional<WindowState> state = engine_.stateOf(window);
    if (!state)
        return;
    record.stirrings = window.stirrings();
    record.stands = std::make_shared<const WindowState>(std::move(*state));
    if (record.clean == nullptr)
        record.clean = record.stands;
    const bool textIsSaved = record.textSaved && *record.textSaved == window.textRevision() && writesText(window);
    record.changed =
        record.changed || (window.holdsUnsaved() && !textIsSaved) || differInWork(*record.clean, *record.stands);
}

void Keeper::askToWake()
{
    if (std::exchange(awake_, true))
        return;
    if (wake)
        wake();
}

void Keeper::eventBegins()
{
    for (Window* window : engine_.windows())
        if (follows(*window))
            copy(*window, recordOf(*window));
}

void Keeper::eventEnded()
{
    if (engine_.ended())
        return finish();
    if (anyFailed_)
        askToWake();
    for (Window* window : engine_.windows())
        if (follows(*window)) {
            Record& record = recordOf(*window);
            settle(*window, record);
            if (record.stirrings != window->stirrings())
                askToWake();
        }
}

// What was saved is the new beginning. Work that was given up in a window that stays is work again, unless the window holds
// none any more.
void Keeper::settle(Window& window, Record& record)
{
    const bool empty = record.givenUp && !window.holdsUnsaved() && writesText(window);
    if (record.saved || empty) {
        forget(record);
        record.stands = record.clean = nullptr;
        record.changed = false;
        record.textSaved = window.textRevision();
    }
    record.saved = record.givenUp = false;
    if (record.stands == nullptr) {
        copy(window, record);
        if (record.changed)
            askToWake();
    }
}

// While a box stands, windows cannot be copied: what is kept is how they stood before the event that has raised it.
bool Keeper::work()
{
    awake_ = false;
    if (engine_.ended())
        return false;
    noteFailures();
    for (Window* window : engine_.windows()) {
        if (!follows(*window))
            continue;
        Record& record = recordOf(*window);
        copy(*window, record);
        if (!record.changed)
            continue;
        if (copyText(*window, record))
            return true;
        write(record);
    }
    return false;
}

void Keeper::noteFailures()
{
    const std::lock_guard held(failedMutex_);
    for (auto& [window, record] : records_)
        if (failed_.contains(record.name))
            record.written = nullptr;
    failed_.clear();
    anyFailed_ = false;
}

// True while there is more of it to copy.
bool Keeper::copyText(Window& window, Record& record)
{
    if (!writesText(window) || record.textKept == window.textRevision())
        return false;
    if (record.copying == nullptr || record.copying->stale())
        record.copying = std::make_unique<host::LongTextCopy>(window, editorOf(window));
    if (record.copying->next())
        return true;
    std::vector<host::LongText> texts;
    texts.push_back(record.copying->take());
    if (texts.back().slices.empty())
        texts.clear();
    record.longTexts = std::make_shared<const std::vector<host::LongText>>(std::move(texts));
    record.textKept = window.textRevision();
    record.copying = nullptr;
    record.written = nullptr;
    return false;
}

void Keeper::write(Record& record)
{
    if (record.stands == nullptr || (record.written != nullptr && *record.written == *record.stands))
        return;
    record.written = record.stands;
    record.filed = true;
    errands_.give([this, name = record.name, state = record.stands, texts = record.longTexts] {
        WindowState whole = *state;
        if (texts != nullptr)
            whole.longTexts = *texts;
        if (folder_.write(name, stateText(whole)))
            return;
        const std::lock_guard held(failedMutex_);
        failed_.insert(name);
        anyFailed_ = true;
    });
}

void Keeper::forget(Record& record)
{
    record.written = nullptr;
    record.longTexts = nullptr;
    record.textKept.reset();
    record.copying = nullptr;
    if (std::exchange(record.filed, false))
        errands_.give([this, name = record.name] { folder_.forget(name); });
}

void Keeper::keepAll()
{
    while (work())
        continue;
    errands_.finish();
}

void Keeper::workSaved(Window& window)
{
    if (follows(window))
        recordOf(window).saved = true;
}

void Keeper::workGivenUp(Window& window)
{
    if (follows(window))
        recordOf(window).givenUp = true;
}

void Keeper::windowGoes(Window& window)
{
    const auto found = records_.find(&window);
    if (found == records_.end())
        return;
    Record& record = found->second;
    if (record.saved || record.givenUp || !record.changed) {
        forget(record);
    } else {
        if (writesText(window) && record.textKept != window.textRevision())
            record.longTexts = std::make_shared<const std::vector<host::LongText>>(host::longTextsOf(window));
        leave(record);
    }
    records_.erase(found);
}

// The window is gone, the work is not: it is offered at once.
void Keeper::leave(Record& record)
{
    record.written = nullptr;
    write(record);
    WindowState state = *record.stands;
    if (record.longTexts != nullptr)
        state.longTexts = *record.longTexts;
    errands_.finish();
    left_.push_back({folder_.pathOf(record.name), std::move(state), now_()});
    if (offerChanged)
        offerChanged();
}

// The program has ended, and every window stands as it did before the last event.
void Keeper::finish()
{
    if (std::exchange(finished_, true))
        return;
    for (Window* window : engine_.windows()) {
        const auto found = records_.find(window);
        if (found == records_.end())
            continue;
        Record& record = found->second;
        if (record.saved || record.givenUp) {
            forget(record);
        } else if (record.changed) {
            if (writesText(*window) && record.textKept != window->textRevision()) {
                record.longTexts = std::make_shared<const std::vector<host::LongText>>(host::longTextsOf(*window));
                record.written = nullptr;
            }
            write(record);
        }
    }
    errands_.finish();
}

bool Keeper::failing()
{
    for (auto& [window, record] : records_)
        record.saved = record.givenUp = false;
    noteFailures();
    finish();
    const bool any = std::any_of(records_.begin(), records_.end(), [](const auto& one) { return one.second.filed; });
    const std::lock_guard held(failedMutex_);
    return any && failed_.empty();
}

std::string Keeper::fileOf(const Window& window) const
{
    const auto found = records_.find(&window);
    return found == records_.end() || !found->second.changed ? std::string() : found->second.name;
}

void Keeper::look()
{
    errands_.finish();
    for (LeftFile& file : folder_.takeLeft()) {
        std::optional<WindowState> state = host::readState(file.state, engine_);
        if (state)
            left_.push_back({std::move(file.path), std::move(*state), file.time});
        else
            folder_.drop(file.path);
    }
    if (offerChanged)
        offerChanged();
}

Offer Keeper::offer() const
{
    Offer offer;
    for (const Left& left : left_) {
        ++(left.state.spec->role == host::Role::editor ? offer.texts : offer.designs);
        offer.time = std::max(offer.time, left.time);
    }
    return offer;
}

// Each is kept anew as an open window before the file that it came from goes.
bool Keeper::openOffered()
{
    if (!engine_.idle() || engine_.ended())
        return false;
    std::vector<Left> left = std::exchange(left_, {});
    std::vector<WindowState> states;
    for (Left& one : left)
        states.push_back(std::move(one.state));
    const std::vector<Window*> opened = engine_.open(states);
    for (Window* window : opened)
        if (window != nullptr) {
            Record& record = recordOf(*window);
            copy(*window, record);
            record.changed = true;
        }
    keepAll();
    noteFailures();
    for (std::size_t i = 0; i < left.size(); ++i) {
        const auto found = records_.find(opened[i]);
        if (opened[i] != nullptr && found != records_.end() && found->second.written != nullptr)
            folder_.remove(left[i].path);
    }
    if (offerChanged)
        offerChanged();
    return true;
}

void Keeper::dropOffered()
{
    errands_.finish();
    for (const Left& left : std::exchange(left_, {}))
        folder_.drop(left.path);
    if (offerChanged)
        offerChanged();
}

} // namespace velmor::keeping
