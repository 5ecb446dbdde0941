// SPDX-License-Identifier: MIT
// Keeps the state of every changed sheet and editor on the disk while it is worked on, and offers what was left. Copies are
// taken between events, texts are made and written by a thread of their own. Knows no toolkit: whoever shows the program calls
// `work` when `wake` has asked for it, within a second and a half.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/engine.h"
#include "host/follower.h"
#include "host/window_state.h"
#include "keeping/errands.h"
#include "keeping/kept_folder.h"

namespace velmor::keeping {

/// Where and when; injected.
struct Place {
    std::filesystem::path folder;
    Clock now;
    bool inThread = true; ///< false: everything is written when it is asked for
};

/// What is offered to be opened again.
struct Offer {
    int designs = 0;
    int texts = 0;
    std::int64_t time = 0; ///< of the latest change
    bool empty() const { return designs + texts == 0; }
};

class Keeper final : public host::Follower {
public:
    Keeper(host::Engine& engine, Place place);
    /// Everything that is worth it is on the disk then.
    ~Keeper() override;

    /// Something is to be kept: `work` wants to be called within a second and a half, by a timer. Called once until then.
    std::function<void()> wake;
    /// There is something new to be offered, or nothing any more.
    std::function<void()> offerChanged;

    /// Keeps what has changed; of a long text it copies one slice. True when it wants to be called again at once.
    bool work();
    /// Keeps everything that has changed, and returns when it is on the disk.
    void keepAll();

    /// The name of the file in which a window's work is kept; empty while there is none to keep.
    std::string fileOf(const host::Window& window) const;

    /// Looks for what programs that no longer run have left.
    void look();
    Offer offer() const;
    /// Opens all that is offered as it stood. False while an event is under way.
    bool openOffered();
    /// Moves all that is offered to the dropped ones.
    void dropOffered();
    std::filesystem::path droppedFolder() const { return folder_.droppedFolder(); }

    void eventBegins() override;
    void eventEnded() override;
    void windowGoes(host::Window& window) override;
    void workSaved(host::Window& window) override;
    void workGivenUp(host::Window& window) override;
    bool failing() override;

private:
    using State = std::shared_ptr<const host::WindowState>;
    using LongTexts = std::shared_ptr<const std::vector<host::LongText>>;

    /// What is known of an open window.
    struct Record {
        std::string name;                  ///< of its file
        State clean;                       ///< as it was when there was nothing to keep
        State stands;                      ///< the latest copy, without long texts
        State written;                     ///< what its file holds, or will
        LongTexts longTexts;               ///< the latest whole copy of them
        unsigned stirrings = 0;            ///< of the window at the latest copy
        std::optional<unsigned> textKept;  ///< revision of the text that `longTexts` holds
        std::optional<unsigned> textSaved; ///< revision of the text that the person has saved
        bool changed = false;
        bool saved = false;   ///< within the event that is under way
        bool givenUp = false; ///< likewise
        bool filed = false;   ///< a file was ordered
        std::unique_ptr<host::LongTextCopy> copying;
    };
    /// A state whose window is open nowhere.
    struct Left {
        std::filesystem::path path;
        host::WindowState state;
        std::int64_t time = 0;
    };

    static bool follows(const host::Window& window);
    Record& recordOf(host::Window& window);
    void copy(host::Window& window, Record& record);
    void settle(host::Window& window, Record& record);
    void askToWake();
    void noteFailures();
    bool copyText(host::Window& window, Record& record);
    void write(Record& record);
    void leave(Record& record);
    void forget(Record& record);
    void finish();

    host::Engine& engine_;
    Clock now_;
    KeptFolder folder_; ///< touched by errands alone, or when there are none
    std::unordered_map<const host::Window*, Record> records_;
    std::vector<Left> left_;
    std::mutex failedMutex_;
    std::set<std::string> failed_; ///< names of files that could not be written: they are tried again
    std::atomic<bool> anyFailed_ = false;
    unsigned count_ = 0;
    bool awake_ = false;
    bool finished_ = false;
    Errands errands_; ///< last: its thread ends first
};

} // namespace velmor::keeping
