// SPDX-License-Identifier: MIT
// The small steps that the slots of all sheets are made of, each called in the order in which the sheet tells it.
// Free functions on a sheet and its fields; they know no circuit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rules/numbers.h"
#include "sheets/design_sheet.h"

namespace velmor::sheets {

inline constexpr std::int16_t enterKey = 13;
inline constexpr std::int16_t escapeKey = 27;

/// A message box as data.
struct BoxText {
    host::BiText text{};
    host::BiText title{};
    int flags = 0;
};

/// "Debe colocar una cifra..." / " Place a number...", the box of an empty field at Enter where the sheet names no other.
extern const BoxText placeANumber;

/// What each key press of an input field begins with: the key filter, its beep, the separator put back to ".", and
/// `modificado` set. Returns the filtered key, which is also the event's key from then on.
std::int16_t filteredKey(DesignSheet& sheet, host::EventArgs& args);

/// What a key press asks of a field of the chain.
enum class Press : std::uint8_t {
    nothing, ///< an ordinary key, or Enter in the empty field, which has been told so
    enter,   ///< go on; the field is bare by now
    escape,  ///< take the default and go on
};
/// A key press in `args.control`, filtered first. Enter in an empty field shows `whenEmpty` and asks nothing; Enter in a
/// filled one rewrites it as its bare number before anything else of the step.
Press pressed(DesignSheet& sheet, host::EventArgs& args, const BoxText& whenEmpty);

/// The number that a field's or caption's text begins with.
rules::Real number(const host::Window& window, host::Handle control);
/// The number of a field that must hold nothing else: it is rewritten as its bare number first.
rules::Real strictNumber(DesignSheet& sheet, host::Handle field);

/// Writes a number into a field: up to 15 digits.
void writeNumber(DesignSheet& sheet, host::Handle control, rules::Real value);
/// The text of a displayed result: four decimals.
std::string shown(const DesignSheet& sheet, rules::Real value);
/// The text of a number with up to 15 digits.
std::string digits(const DesignSheet& sheet, rules::Real value);

bool isEmpty(const host::Window& window, host::Handle field);
/// Rewrites a field as its bare number, which removes any unit.
void makeBare(DesignSheet& sheet, host::Handle field);
/// Makes the field bare when its number lies in the range; writes `otherwise` when it does not (also for an empty field).
/// A value in range is left as typed. True when it had to be corrected.
bool correctToRange(DesignSheet& sheet, host::Handle field, double low, double high, double otherwise);
bool correctFrom(DesignSheet& sheet, host::Handle field, double low, double otherwise);

/// Shows and enables the control and gives it the focus.
void goTo(DesignSheet& sheet, host::Handle field);

/// Shows a box in the language of the moment; returns its answer.
int say(const DesignSheet& sheet, const BoxText& box);

/// The pair of clone images.
struct ClonePair {
    host::Handle first = host::noControl;
    host::Handle second = host::noControl;
};
/// A click on one image of the pair: exchanges the two and opens a blank sheet of the same kind beside this one.
void clone(DesignSheet& sheet, const ClonePair& pair, host::Handle clicked);

void showCalculator(DesignSheet& sheet);

/// The main window's bar routine: brings up the bar that the student has chosen.
void showBarAsChosen(host::SheetHost& host);

/// Re-applies the arrangement of the main window's marks; cascades, and marks `mnuCas`, when there is none.
void rearrange(host::SheetHost& host);
/// The guide button: a new text editor of the language opens `guide`.
void openGuide(DesignSheet& sheet, std::string_view guide);

/// The report button. `askFirst`: an editor that is open already is only overwritten when the student accepts.
void openReport(DesignSheet& sheet, bool askFirst);

} // namespace velmor::sheets
