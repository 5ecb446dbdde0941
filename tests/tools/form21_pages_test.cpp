// SPDX-License-Identifier: MIT
// Lint over the deeper pages of Form21: no caption of a sheet is without its page, and every way leads out.
#include "tools/form21_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

namespace velmor::form21_pages_test {

using form21::deepPages;
using form21::waysBack;

const form21::DeepPage* pageOf(std::string_view caption)
{
    const auto found =
        std::find_if(deepPages.begin(), deepPages.end(), [&](const auto& row) { return row.caption == caption; });
    return found == deepPages.end() ? nullptr : &*found;
}

const form21::WayBack* wayOf(std::string_view caption)
{
    const auto found =
        std::find_if(waysBack.begin(), waysBack.end(), [&](const auto& row) { return row.caption == caption; });
    return found == waysBack.end() ? nullptr : &*found;
}

TEST(Form21Pages, EveryCaptionThatASheetWritesHasAPage)
{
    constexpr std::string_view captions[] = {// Form2 and Form4
                                             " Delta QIc...", " Temperatura...", " Delta Vbe...", " QIc...", " Res",
                                             " Resistor Emisor", " RLw..", " S..", "...Vg", " Vg..", " Ganancia Vg..",
                                             "RL..", " más sobre RL..", " fo...", " Eopp...", "Es...", "-Es...",
                                             "Beta...", "Ec(max)", "Ic(max)", "Si/Ge", "Rb2", "Ein", "Rb1",
                                             // Form8 and Form18
                                             " S ", " S...", " Vg", " más sobre RL", " Eopp", " Eopp..", "Rg..",
                                             // Form17
                                             "   QIc...", "   Res..", "  mas Eopp....", "  Ein(rms)", "Rb1.",
                                             // the window itself
                                             " Temperatura"};
    for (const auto caption : captions)
        EXPECT_NE(pageOf(caption), nullptr) << caption;
    EXPECT_EQ(std::size(captions), deepPages.size()) << "a page that nobody asks for";
    EXPECT_EQ(pageOf(" QIc.."), nullptr) << "captions are compared to the letter";
}

TEST(Form21Pages, NoCaptionStandsTwice)
{
    std::set<std::string_view> captions;
    for (const auto& row : deepPages)
        EXPECT_TRUE(captions.insert(row.caption).second) << row.caption;
    captions.clear();
    for (const auto& row : waysBack)
        EXPECT_TRUE(captions.insert(row.caption).second) << row.caption;
}

TEST(Form21Pages, ThereAreAboutTwentyTopicsAndEachHasSomethingToSay)
{
    std::set<std::string_view> pages;
    for (const auto& row : deepPages) {
        pages.insert(row.page);
        EXPECT_GT(row.page.size(), 300U) << row.caption;
    }
    EXPECT_GE(pages.size(), 20U);
    EXPECT_LE(pages.size(), 30U);
}

TEST(Form21Pages, FromEveryPageTheWindowIsLeftInAFewClicks)
{
    for (const auto& start : deepPages) {
        const auto* page = &start;
        int clicks = 0;
        while (page != nullptr && clicks < 10) {
            const auto* way = wayOf(page->nextCaption);
            ASSERT_NE(way, nullptr) << page->nextCaption;
            clicks += 2;
            if (way->unloads || way->backTo == form21::leaveCaption)
                break;
            page = pageOf(way->backTo);
            ASSERT_NE(page, nullptr) << way->backTo;
        }
        EXPECT_LT(clicks, 10) << start.caption;
    }
}

TEST(Form21Pages, EveryWayBackIsOfferedBySomePage)
{
    for (const auto& way : waysBack) {
        EXPECT_TRUE(std::any_of(deepPages.begin(), deepPages.end(), [&](const auto& row) {
            return row.nextCaption == way.caption;
        })) << way.caption;
        EXPECT_EQ(way.unloads, way.backTo.empty()) << way.caption;
    }
}

TEST(Form21Pages, TheStatementsOfTheCourseStandToTheLetter)
{
    constexpr std::array<std::string_view, 5> statements{"          Vg = Eopp / Ein  ", "         Vg = RLac / r'e.",
                                                         "         Vg = RLac / Res.", "        S = Rb2 / Res ",
                                                         "no debe superar el 40 % de Icmax"};
    for (const auto statement : statements)
        EXPECT_TRUE(std::any_of(deepPages.begin(), deepPages.end(), [&](const auto& row) {
            return row.page.find(statement) != std::string_view::npos;
        })) << statement;
}

} // namespace velmor::form21_pages_test
