// SPDX-License-Identifier: MIT
// What the tables of the main window and of the palette hold beside the rules that every window keeps. Each check is seen to
// refuse a bad table.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>

#include "frame/button_drawings.h"
#include "frame/form16_controls.h"
#include "frame/main_window_program.h"
#include "frame/mdi_form1_controls.h"
#include "frame/mdi_form1_layout.h"
#include "frame/mdi_form1_menus.h"
#include "frame/page_drawings.h"
#include "frame/palette_texts.h"
#include "frame/welcome_texts.h"

namespace velmor::frame_tables_test {

using host::BiText;
using host::ControlRow;
using host::Kind;

bool bothOrNone(const BiText& text)
{
    return text.es.empty() == text.en.empty();
}

/// Marks that leave the box of `width` by `height` units.
std::vector<std::size_t> outside(std::span<const host::Mark> marks, int width, int height)
{
    const auto lies = [&](host::GridPoint at) { return at.x >= 0 && at.y >= 0 && at.x <= width && at.y <= height; };
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const bool ended = marks[i].to.x != 0 || marks[i].to.y != 0;
        const bool within = marks[i].points.empty() ? lies(marks[i].from) && (!ended || lies(marks[i].to))
                                                    : std::all_of(marks[i].points.begin(), marks[i].points.end(), lies);
        if (!within)
            found.push_back(i);
    }
    return found;
}

/// Wires that end at nothing: no other mark has an end there or passes through.
std::vector<std::size_t> looseWires(std::span<const host::Mark> marks)
{
    using host::GridPoint;
    const auto same = [](GridPoint a, GridPoint b) { return a.x == b.x && a.y == b.y; };
    const auto onWire = [&](GridPoint p, const host::Mark& wire) {
        const auto between = [](int v, int a, int b) { return std::min(a, b) <= v && v <= std::max(a, b); };
        return between(p.x, wire.from.x, wire.to.x) && between(p.y, wire.from.y, wire.to.y);
    };
    const auto touches = [&](GridPoint p, const host::Mark& mark) {
        switch (mark.symbol) {
        case host::Symbol::wire:
            return onWire(p, mark);
        case host::Symbol::npn:
        case host::Symbol::pnp:
        case host::Symbol::npnLeft:
        case host::Symbol::pnpLeft:
            return same(p, mark.from) || same(p, host::upperEnd(mark.symbol, mark.from)) ||
                   same(p, host::lowerEnd(mark.symbol, mark.from));
        case host::Symbol::terminal:
            return std::abs(p.x - mark.from.x) + std::abs(p.y - mark.from.y) <= 3;
        case host::Symbol::polyline:
            return std::any_of(mark.points.begin(), mark.points.end(), [&](GridPoint at) { return same(p, at); }) ||
                   std::any_of(mark.points.begin() + 1, mark.points.end(),
                               [&](const GridPoint& at) { return onWire(p, {.from = *(&at - 1), .to = at}); });
        case host::Symbol::text:
        case host::Symbol::label:
        case host::Symbol::node:
            return false;
        default:
            return same(p, mark.from) || same(p, mark.to);
        }
    };
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (marks[i].symbol != host::Symbol::wire)
            continue;
        for (const GridPoint end : {marks[i].from, marks[i].to}) {
            bool held = false;
            for (std::size_t other = 0; other < marks.size(); ++other)
                held = held || (other != i && touches(end, marks[other]));
            if (!held)
                found.push_back(i);
        }
    }
    return found;
}

TEST(FrameTables, TheChecksRefuseABadTable)
{
    EXPECT_FALSE(bothOrNone({.es = "uno", .en = ""}));
    constexpr host::Mark far[] = {{.symbol = host::Symbol::wire, .from = {0, 0}, .to = {541, 5}}};
    EXPECT_EQ(outside(far, 540, 313).size(), 1U);
    constexpr host::Mark loose[] = {{.symbol = host::Symbol::wire, .from = {0, 0}, .to = {50, 0}},
                                    {.symbol = host::Symbol::resistor, .from = {50, 0}, .to = {110, 0}}};
    EXPECT_EQ(looseWires(loose).size(), 1U);
}

TEST(FrameTables, EveryMenuItemGetsOneCaption)
{
    std::map<host::Handle, int> written;
    for (const auto& caption : main_window::itemCaptions)
        ++written[caption.item];
    for (const auto& design : main_window::designItems)
        if (design.newItem != host::noControl)
            for (const host::Handle item : {design.newItem, design.openItems[0], design.openItems[1]})
                if (item != host::noControl)
                    ++written[item];
    for (const auto& caption : main_window::groupCaptions)
        for (const ControlRow& row : main_window::spec.controls)
            if (host::sameName(row.name, caption.name))
                ++written[row.id];
    for (const ControlRow& row : main_window::spec.controls)
        if (row.kind == Kind::menu && row.id != main_window::mnuContexto) {
            EXPECT_EQ(written[row.id], 1) << row.name;
        }
}

TEST(FrameTables, CaptionsHaveBothLanguages)
{
    for (const auto& caption : main_window::itemCaptions)
        EXPECT_TRUE(bothOrNone(caption.caption) && !caption.caption.es.empty());
    for (const auto& design : main_window::designItems) {
        EXPECT_TRUE(bothOrNone(design.itemCaption)) << design.sheet;
        EXPECT_TRUE(bothOrNone(design.windowCaption)) << design.sheet;
    }
}

TEST(FrameTables, EveryItemWithoutItemsBelowItDoesSomething)
{
    std::set<host::Handle> parents;
    std::set<host::Handle> clicked;
    for (const ControlRow& row : main_window::spec.controls)
        parents.insert(row.parent);
    for (const host::SlotRow& slot : main_window::spec.slots)
        if (slot.event == host::Event::click)
            clicked.insert(slot.control);
    for (const ControlRow& row : main_window::spec.controls)
        if (row.kind == Kind::menu && !parents.contains(row.id)) {
            EXPECT_TRUE(clicked.contains(row.id)) << row.name;
        }
}

TEST(FrameTables, NoMenuGivesOneLetterTwice)
{
    // Within one menu an accelerator must lead to one item; captions that the course gives are its own affair.
    std::map<std::string_view, BiText> texts;
    for (const auto& caption : main_window::groupCaptions)
        texts[caption.name] = caption.text;
    const auto letters = [](std::string_view text) {
        const auto at = text.find('&');
        return at == std::string_view::npos ? std::string() : std::string(text.substr(at + 1, 1));
    };
    std::map<host::Handle, std::multiset<std::string>> spanish, english;
    for (const ControlRow& row : main_window::spec.controls)
        if (texts.contains(row.name) && row.look != host::Look::invisible) {
            spanish[row.parent].insert(letters(texts[row.name].es));
            english[row.parent].insert(letters(texts[row.name].en));
        }
    for (const auto* menus : {&spanish, &english})
        for (const auto& [menu, used] : *menus)
            for (const std::string& letter : used)
                EXPECT_TRUE(letter.empty() || used.count(letter) == 1) << letter;
}

TEST(FrameTables, TooltipsOfTheButtonsAreTheirCaptions)
{
    const auto trimmed = [](std::string_view text) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    for (const ControlRow& row : palette::spec.controls)
        for (std::size_t i = 0; i < 12; ++i)
            if (row.name == "imgButton(" + std::to_string(i) + ")") {
                EXPECT_EQ(row.meaning.es, trimmed(palette::designPages[i].hoverPaletteCaption.es));
                EXPECT_EQ(row.meaning.en, trimmed(palette::designPages[i].hoverPaletteCaption.en));
            }
}

TEST(FrameTables, EveryButtonAndEveryPageHasAPictureWithinItsBox)
{
    int buttons = 0;
    int pages = 0;
    for (const host::WindowSpec* spec : {&main_window::spec, &palette::spec})
        for (const ControlRow& row : spec->controls) {
            if (row.name.starts_with("imgButton")) {
                ++buttons;
                EXPECT_GE(row.drawing.size(), 2U) << row.name;
                EXPECT_TRUE(outside(row.drawing, 69, 72).empty()) << row.name;
            } else if (row.name.starts_with("Picture") && row.id != main_window::Picture14) {
                ++pages;
                EXPECT_GE(row.drawing.size(), 8U) << row.name;
                EXPECT_TRUE(outside(row.drawing, 540, 313).empty()) << row.name;
            }
        }
    EXPECT_EQ(buttons, 13 + 12);
    EXPECT_EQ(pages, 13);
}

TEST(FrameTables, NoWireOfAPageEndsInTheAir)
{
    for (host::Handle picture = main_window::Picture1; picture <= main_window::Picture12; ++picture) {
        const auto drawing = main_window::spec.controls[picture].drawing;
        for (const std::size_t wire : looseWires(drawing))
            ADD_FAILURE() << main_window::spec.controls[picture].name << " wire " << drawing[wire].from.x << ","
                          << drawing[wire].from.y << " - " << drawing[wire].to.x << "," << drawing[wire].to.y;
    }
}

TEST(FrameTables, NothingOnTheShownPageOverlaps)
{
    const auto apart = [](const host::Place& a, const host::Place& b) {
        return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
               b.top + b.height <= a.top;
    };
    main_window_test::Program program;
    host::Window& window = program.main();
    const auto place = [&](host::Handle control) { return main_window::shownPlaceOf(window, control); };
    using namespace main_window;
    for (const bool poem : {false, true}) {
        window.setVisible(Picture13, poem);
        window.setVisible(Image1, false);
        std::vector<host::Handle> page{Label35, Label3, Label4, Label1, Label21, Picture1};
        if (!poem)
            page.push_back(Label20);
        for (const host::Handle one : page) {
            EXPECT_GE(place(one).left, welcomePanel.left);
            EXPECT_LE(place(one).left + place(one).width, welcomePanel.left + welcomePanel.width);
            for (const host::Handle other : page)
                EXPECT_TRUE(one == other || apart(place(one), place(other))) << spec.controls[one].name;
        }
        for (const host::Handle onStrip : {Label1, Label21, Label20, Picture1}) {
            EXPECT_GE(place(onStrip).top, pageStrip.top);
            EXPECT_LE(place(onStrip).top + place(onStrip).height, pageStrip.top + pageStrip.height);
        }
    }
    window.setVisible(Picture13, false);
    window.setVisible(Image1, true);
    for (const host::Handle one : {Label35, Label3, Label4, Image1})
        EXPECT_TRUE(apart(place(one), place(Label21))) << spec.controls[one].name;
    EXPECT_LE(place(Label21).top + place(Label21).height, welcomePanel.height);
    for (host::Handle one = imgButton0; one <= Image29; ++one) {
        EXPECT_LE(place(one).left + place(one).width, circuitBar.width);
        EXPECT_LE(place(one).top + place(one).height, circuitBar.height);
        for (host::Handle other = imgButton0; other < one; ++other)
            EXPECT_TRUE(apart(place(one), place(other))) << spec.controls[one].name;
    }
}

} // namespace velmor::frame_tables_test
