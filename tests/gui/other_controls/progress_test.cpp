// Progress bars: the host fills them, and the user cannot change them.

#include <Xm/Scale.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

enum Id { kBar = 1, kUpright, kCheck };

void build()
{
    guiProgress(kBar, 0, 2, 0, 160);
    guiProgress(kUpright, 3, 6, 0, 8);
    guiCheck(kCheck, 10, 0, 40, "Check");
}

// Of the part of the bar within its shadows, in percent.
int filledPercent(int id)
{
    const screen::Picture picture = screen::grab(controlOf(id));
    const int filled = picture.count(screen::colourNamed("#000080"));
    return filled * 100 / (picture.width() * picture.height());
}

}  // namespace

GUI_TEST(ProgressBar, IsNotChangedByTheUser)
{
    runFilled(
        build,
        [] {
            guiSetPos(kBar, 49);
            guiSetPos(kUpright, 49);
        },
        [this](Shown) {
            const auto events = eventsDuring([&] {
                for (const int id : {int{kBar}, int{kUpright}}) {
                    const Rect bar = rectOf(innerOf(id));
                    for (const Point from : {bar.centre(), bar.corner() + Point{6, 6},
                                             Point{bar.right() - 6, bar.bottom() - 6}}) {
                        robot.drag(from, bar.centre() + Point{3, 3});
                        settle();
                        robot.drag(from, bar.corner() + Point{4, 4}, MiddleButton);
                        settle();
                    }
                    robot.wheel(innerOf(id), 2);
                    robot.wheel(innerOf(id), -1);
                }
            });
            EXPECT_EQ(valueOf(kBar), 50);
            EXPECT_EQ(valueOf(kUpright), 50);
            EXPECT_THAT(only(GUI_EVENT_VALUE, events), IsEmpty());
        });
}

// More, as the value grows: from the left, or from the bottom.
GUI_TEST(ProgressBar, ShowsHowMuchIsDone)
{
    runDialog(build, [](Shown) {
        for (const int id : {int{kBar}, int{kUpright}}) {
            SCOPED_TRACE(id);
            int before = -1;
            for (const int done : {-1, 24, 49, 74, 99}) {
                guiSetPos(id, done);
                ASSERT_TRUE(screen::waitUntilPainted(controlOf(id)));
                EXPECT_GT(filledPercent(id), before) << done;
                before = filledPercent(id);
            }
            EXPECT_GE(before, 50) << "all but the shadows";
        }
        guiSetPos(kBar, 49);
        guiSetPos(kUpright, 49);
        const Rect across = rectOf(controlOf(kBar));
        const Rect upright = rectOf(controlOf(kUpright));
        const screen::Colour blue = screen::colourNamed("#000080");
        const auto isBlue = [&](Point point) { return screen::colourAt(point) == blue; };
        EXPECT_TRUE(pumpUntil([&] { return isBlue({across.x + 10, across.centre().y}); }));
        EXPECT_TRUE(pumpUntil([&] { return !isBlue({across.right() - 10, across.centre().y}); }));
        EXPECT_TRUE(pumpUntil([&] { return isBlue({upright.centre().x, upright.bottom() - 10}); }));
        EXPECT_TRUE(pumpUntil([&] { return !isBlue({upright.centre().x, upright.y + 10}); }));
    });
}

GUI_TEST(ProgressBar, DoesNotTakeTheKeyboard)
{
    runDialog(
        [] {
            build();
            guiEdit(9, 11, 0, 40, 0, 0);
        },
        [](Shown dialog) {
            EXPECT_EQ(guiGetFocus(), kCheck) << "at first";
            for (const int next : {9, int{kCheck}, 9}) {
                dialog.key(XK_Tab);
                EXPECT_EQ(guiGetFocus(), next);
            }
        });

    // A click does not take the keyboard from where it is.
    runDialog(build, [this](Shown dialog) {
        robot.click(innerOf(kBar));
        EXPECT_EQ(guiGetFocus(), kCheck);
        dialog.key(XK_space);
        EXPECT_TRUE(isToggled(kCheck));
    });
}
