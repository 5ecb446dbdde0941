// SPDX-License-Identifier: MIT
// Whatever moves, comes and goes: what a window shows is what a painting of all of it would show.
#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/fire/stale_picture.h"

namespace velmor::test::picture_test {

struct PictureTest : ::testing::Test {
    void SetUp() override
    {
        on.open();
        sheets = {&on.sheet(), &on.newSheet(), &on.newSheet()};
    }
    desktop::ChildFrame& frame(std::size_t which)
    {
        return dynamic_cast<desktop::ChildFrame&>(*on.screen.keeper().frameOf(*sheets[which]));
    }
    /// What was to happen has happened, and the main window shows what it should.
    void rest(const std::string& after)
    {
        Bench::settle();
        EXPECT_EQ(stalePictureOf(on.main()), "") << after;
    }

    Bench on;
    std::vector<host::Window*> sheets;
};

// The toolkit would copy what stands on the screen to the new place, and then paint over what came between.
TEST_F(PictureTest, framesThatMoveTogetherAreSeenWhereTheyAre)
{
    frame(1).setGeometry(300, 100, 500, 300);
    frame(2).setGeometry(500, 200, 500, 300);
    rest("one over the other");
    frame(2).move(148, 45);
    frame(2).move(800, 340);
    frame(1).move(20, 237);
    rest("both moved");
}

} // namespace velmor::test::picture_test
