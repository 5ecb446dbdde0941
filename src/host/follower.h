// SPDX-License-Identifier: MIT
// Whoever follows the windows of a program so that no work is lost: told between events what may have changed, and of the
// moments at which work is safe or given up.
#pragma once

namespace velmor::host {

class Window;

class Follower {
public:
    virtual ~Follower() = default;

    /// An event of the person or of a timer is about to run; nothing is under way. The last moment at which the windows can be
    /// copied as they stand, should the event end the program.
    virtual void eventBegins() = 0;
    /// It is over, and so may the program be.
    virtual void eventEnded() = 0;
    /// A window goes, within an event; it still holds everything.
    virtual void windowGoes(Window& window) = 0;
    /// What the window holds is in a file of the person's own, or was read from one.
    virtual void workSaved(Window& window) = 0;
    /// The person has answered the window's own question about saving by No.
    virtual void workGivenUp(Window& window) = 0;
    /// The program ends by a failure. True when the work is kept as it stood before the event.
    virtual bool failing() = 0;
};

} // namespace velmor::host
