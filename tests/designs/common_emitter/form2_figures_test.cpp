// SPDX-License-Identifier: MIT
// Plays the designs of tests/figures/form2.txt and demands every shown figure, digit for digit. That file is the output of
// tests/figures/form2.py, which works the formulas out by itself.
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "designs/common_emitter/form2_program.h"
#include "places.h"

namespace velmor::form2_figures_test {

using namespace form2;

std::string unescaped(std::string text)
{
    for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at))
        text.replace(at, 2, "\n");
    return text;
}

/// Plays one line of the figures after another.
class Player {
public:
    void play(const std::string& line)
    {
        std::istringstream words(line);
        std::string first;
        words >> first;
        if (program_ && first != "box") {
            EXPECT_TRUE(program_->screen.boxes.empty()) << "a box that the figures do not know";
        }
        if (first == "design") {
            program_ = std::make_unique<test::Form2Program>();
            program_->click(Text1);
            ++designs;
        } else if (first == "circuit") {
            words >> circuit_;
            if (circuit_ == "emitter") {
                program_->click(Picture11);
                program_->screen.boxes.clear(); // the word that this circuit is bypassed
            }
        } else if (first == "click") {
            program_->click(program_->sheet().named(line.substr(6)));
        } else if (first == "box") {
            ASSERT_FALSE(program_->screen.boxes.empty());
            EXPECT_EQ(program_->screen.boxes.back().title, line.substr(4));
            program_->screen.boxes.clear();
        } else if (!line.empty()) {
            playField(line, first);
        }
    }

    int designs = 0;
    int figures = 0;

private:
    void playField(const std::string& line, const std::string& name)
    {
        const std::string rest = line.substr(name.size() + 3);
        const host::Handle control = program_->sheet().named(name);
        if (line.substr(name.size(), 3) == " : ") {
            EXPECT_EQ(program_->sheet().text(control), unescaped(rest)) << name;
            ++figures;
            return;
        }
        EXPECT_EQ(program_->focus(), name);
        if (rest != "*")
            program_->type(rest);
        program_->enter();
        // The only way in: the option picture itself.
        if (circuit_ == "bypassed" && control == Text4)
            program_->sheet().show(Picture1, Image2);
    }

    std::unique_ptr<test::Form2Program> program_;
    std::string circuit_;
};

TEST(Form2Figures, EveryShownFigureOfWholeDesignsIsTheOneWorkedOutByHand)
{
    std::ifstream file(places::source() + "/tests/figures/form2.txt");
    ASSERT_TRUE(file) << "tests/figures/form2.txt is missing";
    Player player;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        SCOPED_TRACE("form2.txt:" + std::to_string(number) + ": " + line);
        player.play(line);
        if (HasFatalFailure())
            return;
    }
    EXPECT_GE(player.designs, 5);
    EXPECT_GE(player.figures, 100);
}

} // namespace velmor::form2_figures_test
