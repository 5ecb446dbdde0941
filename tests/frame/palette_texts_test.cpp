// SPDX-License-Identifier: MIT
// Lint over the texts of the palette and of the welcome panel. Literals here are the course's own, to the letter.
#include "frame/palette_texts.h"
#include "frame/welcome_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace velmor::palette_texts_test {

bool bothLanguages(const host::BiText& text)
{
    return !text.es.empty() && !text.en.empty();
}

bool noLanguage(const host::BiText& text)
{
    return text.es.empty() && text.en.empty();
}

/// Sentences are counted by their ends, so that the dots of "(r.m.s.)" or "..." need no care in the pages: they have
/// none.
std::ptrdiff_t sentences(std::string_view text)
{
    std::ptrdiff_t ends = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool last = i + 1 == text.size();
        if ((text[i] == '.' || text[i] == '?') && (last || text[i + 1] == ' '))
            ++ends;
    }
    return ends;
}

TEST(PaletteTexts, EveryPageSpeaksBothLanguagesInOneToThreeSentences)
{
    for (const auto& page : palette::designPages) {
        EXPECT_TRUE(bothLanguages(page.text)) << page.sheet;
        EXPECT_TRUE(bothLanguages(page.hoverMainCaption)) << page.sheet;
        EXPECT_TRUE(bothLanguages(page.hoverPaletteCaption)) << page.sheet;
        for (const auto text : {page.text.es, page.text.en}) {
            EXPECT_GE(sentences(text), 1) << text;
            EXPECT_LE(sentences(text), 3) << text;
        }
    }
    EXPECT_EQ(sentences("Uno. Dos. Tres. Cuatro."), 4) << "the counter must be able to refuse";
}

TEST(PaletteTexts, ButtonsTwoToFiveHaveNoMaximAndTheOthersHaveOne)
{
    for (std::size_t i = 0; i < palette::designPages.size(); ++i) {
        const auto& maxim = palette::designPages[i].maxim;
        EXPECT_TRUE(i >= 2 && i <= 5 ? noLanguage(maxim) : bothLanguages(maxim)) << i;
    }
}

TEST(PaletteTexts, EveryButtonOpensASheetOfItsOwn)
{
    std::set<std::string_view> sheets;
    for (const auto& page : palette::designPages)
        sheets.insert(page.sheet);
    EXPECT_EQ(sheets.size(), palette::designPages.size());
    EXPECT_TRUE(noLanguage(palette::designPages[11].sheetTitle)) << "the chooser keeps its own title";
}

TEST(PaletteTexts, PagesOfTheFirstAndEleventhButtonBeginAsTheyAlwaysDid)
{
    const auto& pages = palette::designPages;
    EXPECT_TRUE(
        pages[0].text.es.starts_with("En este programa podremos realizar mediciones de señal de salida, de fase y de "
                                     "Rechazo de Modo Común, para luego concretar un circuito präctico de una "
                                     "entrada  y una salida en fase."));
    EXPECT_TRUE(
        pages[0].text.en.starts_with("In this program we will be able to carry out mensurations of exit sign, of "
                                     "phase and of Common Mode Rejection, then we will carry out a circuit of an "
                                     "entrance and an exit in phase. "));
    EXPECT_TRUE(
        pages[10].text.es.starts_with("El criterio de esta practica es mantener la tensión de Emisor (ERes) "
                                      "calculada durante el diseño, para asegurar la estabilidad del circuito ante "
                                      "los cambios de temperatura"));
    EXPECT_TRUE(
        pages[10].text.en.starts_with("The approach of this practices it is to maintain the Emitter voltage (ERes) "
                                      "calculated during the design, to assure the stability of the circuit in the "
                                      "face of the changes of temperature"));
}

TEST(PaletteTexts, OnlyTheCommonEmittersTellTheirClassOnTheMainWindowAlone)
{
    for (std::size_t i = 0; i < palette::designPages.size(); ++i) {
        const auto& page = palette::designPages[i];
        const bool differ = page.hoverMainCaption.es != page.hoverPaletteCaption.es;
        EXPECT_EQ(differ, i >= 10) << i;
        EXPECT_EQ(page.hoverMainCaption.en != page.hoverPaletteCaption.en, i >= 10) << i;
    }
}

TEST(PaletteTexts, ThePoemBeginsWithTheSoundsInBothLanguages)
{
    EXPECT_TRUE(palette::poem.label1.es.starts_with("Los sonidos formaron "));
    EXPECT_TRUE(palette::poem.label1.en.starts_with("The sounds formed"));
    EXPECT_TRUE(bothLanguages(palette::poem.label21));
    const auto stanzas = [](std::string_view text) { return std::count(text.begin(), text.end(), '\n'); };
    EXPECT_EQ(stanzas(palette::poem.label1.es), stanzas(palette::poem.label1.en));
    EXPECT_EQ(stanzas(palette::poem.label21.es), stanzas(palette::poem.label21.en));
}

TEST(PaletteTexts, EachSymbolNoteBelongsToAPageOfItsOwn)
{
    std::set<std::size_t> buttons;
    std::set<std::string_view> labels;
    for (const auto& note : palette::symbolNotes) {
        EXPECT_TRUE(bothLanguages(note.text)) << note.label;
        EXPECT_LT(note.button, palette::designPages.size());
        buttons.insert(note.button);
        labels.insert(note.label);
    }
    EXPECT_EQ(buttons.size(), palette::symbolNotes.size());
    EXPECT_EQ(labels, (std::set<std::string_view>{"Label20", "Label22", "Label24", "Label25", "Label26", "Label33"}));
    EXPECT_EQ(palette::symbolNotes[0].text.es,
              "Simbologia\nhFE = ganancia de corriente sin señal\nhfe = Ganancia para pequeñas señales");
}

TEST(WelcomeTexts, EveryTextIsNamedOnceAndSpeaksBothLanguages)
{
    std::set<std::string_view> names;
    for (const auto& row : main_window::groupCaptions) {
        EXPECT_TRUE(bothLanguages(row.text)) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_LE(std::string(row.text.es).size(), 32U) << "a caption is short: " << row.name;
    }
    for (const auto& row : main_window::welcomeLabels) {
        EXPECT_TRUE(bothLanguages(row.text)) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
}

TEST(WelcomeTexts, AcceleratorsDifferWithinTheMenuOfNewSheets)
{
    const auto accelerator = [](std::string_view caption) {
        const auto at = caption.find('&');
        return at == std::string_view::npos ? '\0' : caption[at + 1];
    };
    for (std::size_t first = 0; first < 14; first += 7) {
        std::set<char> spanish;
        std::set<char> english;
        for (std::size_t i = first; i < first + 7; ++i) {
            spanish.insert(accelerator(main_window::groupCaptions[i].text.es));
            english.insert(accelerator(main_window::groupCaptions[i].text.en));
        }
        EXPECT_EQ(spanish.size(), 7U);
        EXPECT_EQ(english.size(), 7U);
        EXPECT_EQ(spanish.count('\0') + english.count('\0'), 0U);
    }
}

} // namespace velmor::palette_texts_test
