// Image controls without a picture: a place that takes the keyboard and tells of clicks alone.

#include <Xm/ToggleB.h>

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

enum Id { kPlain = 1, kFramed, kEdit };

void build()
{
    guiImage(kPlain, 0, 2, 0, 60, 0);
    guiImage(kFramed, 3, 2, 0, 60, 1);
    guiEdit(kEdit, 6, 0, 60, 0, 0);
}

}  // namespace

GUI_TEST(ImageControl, TakesTheKeyboardWhenItIsClicked)
{
    runDialog(build, [this](Shown) {
        for (const int id : {kPlain, kFramed}) {
            robot.click(controlOf(id));
            EXPECT_TRUE(hasFocus(id));
            EXPECT_EQ(guiGetFocus(), id);
        }
        for (const unsigned button : {MiddleButton, RightButton}) {
            robot.click(controlOf(kPlain), button);
            EXPECT_TRUE(hasFocus(kFramed)) << "button " << button << " moves it nowhere";
        }
    });
}

// Three clicks are three events, and keys are none.
GUI_TEST(ImageControl, RaisesNoEventButThatOfAClick)
{
    runDialog(build, [this](Shown dialog) {
        for (const int id : {kPlain, kFramed}) {
            robot.click(controlOf(id));
            const auto events = eventsDuring([&] {
                robot.click(controlOf(id));
                robot.doubleClick(controlOf(id));
                dialog.key(XK_space);
                dialog.key(XK_Return);
            });
            EXPECT_EQ(events.size(), 3U) << id;
            for (const Event& event : events) {
                EXPECT_EQ(event.event, GUI_EVENT_KEY);
                EXPECT_EQ(event.id, id);
            }
        }
    });
}

// A frame of two pixels around it, and nothing in it; without one nothing is seen at all.
GUI_TEST(ImageControl, IsEmptyWithinItsFrame)
{
    runDialog(build, [](Shown dialog) {
        const screen::Colour background =
            screen::colourOf(dialog.widget(), resource<Pixel>(dialog.widget(), XmNbackground));
        ASSERT_TRUE(screen::waitUntilPainted(controlOf(kFramed)));
        const screen::Picture plain = screen::grab(controlOf(kPlain));
        EXPECT_EQ(plain.count(background), plain.width() * plain.height());

        const screen::Picture framed = screen::grab(controlOf(kFramed));
        const int inside = (framed.width() - 4) * (framed.height() - 4);
        EXPECT_EQ(framed.count(background), inside);
        for (const int edge : {0, 1}) {
            EXPECT_NE(framed.at(10, edge), background);
            EXPECT_NE(framed.at(edge, 10), background);
            EXPECT_NE(framed.at(framed.width() - 1 - edge, 10), background);
            EXPECT_NE(framed.at(10, framed.height() - 1 - edge), background);
        }
    });
}

// A click changes nothing that can be seen, however often.
GUI_TEST(ImageControl, LooksTheSameWhenItIsClicked)
{
    runDialog(build, [this](Shown) {
        for (const int id : {kPlain, kFramed, kPlain, kFramed}) {
            ASSERT_TRUE(screen::waitUntilPainted(controlOf(id)));
            const screen::Picture before = screen::grab(controlOf(id));
            robot.click(controlOf(id));
            settle();
            EXPECT_EQ(screen::grab(controlOf(id)), before) << id;
        }
    });
}

// Each is destroyed with its dialog, picture or none.
GUI_TEST(ImageControl, GoesWithItsDialog)
{
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(guiDialog(""), 0);
        build();
        guiClose(0);
        EXPECT_TRUE(pumpUntil([] { return findWidgets("v_dlgimage").empty(); }));
    }
}
