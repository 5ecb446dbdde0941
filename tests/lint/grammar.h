// SPDX-License-Identifier: MIT
// The grammar that all sheets share, as rules: where things stand, tools, keys, symbols, how the drawing grows, the chain and
// what is said along it. Each rule looks at the tables of one sheet and tells in words what breaks it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "lint/lint.h"

namespace velmor::lint {

/// The tables of one sheet.
struct Sheet {
    const host::WindowSpec& window;
    const sheets::SheetSpec& tables;

    bool has(host::Handle control) const { return control < window.controls.size(); }
    bool isInChain(host::Handle field) const;
    /// The quoted name of a control.
    std::string named(host::Handle control) const;
};

/// Voice, next step and paper stand at their places, fields with their symbol at the left among the parameters, and nothing
/// but tools where the tools stand. Overlays lie where they like.
Complaints zones(const Sheet& sheet);
/// The tools look, stand and speak as on every sheet. Those told come only with the design, and are hidden at first.
Complaints tools(const Sheet& sheet, std::span<const Spot> late = {});
/// The tools have their keys, a pair of images one for both; no key of the house is taken; own digits count from Ctrl+1.
Complaints sheetKeys(const Sheet& sheet, std::span<const host::ShortcutRow> keysOfTheMainWindow);
/// Fields measure quantities of the notation in their units, SI prefixes apart, and the drawing spells them alike.
Complaints symbols(const Sheet& sheet);
/// Parts that grow are strokes, hidden at first, and come with a field of the chain; values belong to such parts; every line
/// and shape is there from the start or grows.
Complaints growth(const Sheet& sheet);

/// A field that no Enter and no Esc by itself reaches, and why that is right.
struct Unreached {
    std::string_view window;
    std::string_view field;
    std::string_view reason;
};
/// Rows name fields, ranges hold their corrections, the chain reaches every field from its first, and the order of the Tab key
/// begins with it.
Complaints chain(const Sheet& sheet, std::span<const Unreached> unreached);

/// What is said in one language only, and why that is right.
struct OneLanguage {
    std::string_view window;
    std::string_view about;
    std::string_view reason;
};
/// What is said has its place and both languages, boxes their titles, and Enter in any empty field is answered.
Complaints sayings(const Sheet& sheet, std::span<const OneLanguage> exceptions);
/// Help pages belong to fields of the chain, each once, in both languages; help boxes come with their tool.
Complaints helpPages(const Sheet& sheet);

} // namespace velmor::lint
