// What the closing frame writes into the profile. Without a window manager: the test says what the
// decoration is.

#include "connection.h"
#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

ProfileAccess writes(const char* key, int value)
{
    return {ProfileAccess::Kind::WriteInt, "kite", key, value};
}

int windowAt(Point corner)
{
    const Window window =
        XCreateSimpleWindow(connection(), rootWindow(), corner.x, corner.y, 10, 10, 0, 0, 0);
    XSync(connection(), False);
    return static_cast<int>(window);
}

// Opens the frame there, with a decoration window at its corner, and closes it.
Point savedCorner(Point frame, Point decoration)
{
    savePlace({frame.x, frame.y, 400, 300});
    App::instance().run([&] { decorWindow = windowAt(decoration); });
    const Profile& profile = HostDouble::instance().profile();
    return {profile.intOf("mwndx").value_or(-1000), profile.intOf("mwndy").value_or(-1000)};
}

}  // namespace

GUI_TEST(SavedNumbers, NoDecorationIsKnownWithoutAWindowManager)
{
    EXPECT_EQ(decorWindow, 666);
}

GUI_STARTUP_TEST(SavedNumbers, NoDecorationIsKnownBeforeTheStart)
{
    EXPECT_EQ(decorWindow, 666);
}

GUI_STARTUP_TEST(SavedNumbers, AreTheFramesOwnInThisOrder)
{
    savePlace({110, 70, 410, 310});
    app.run([] {});
    EXPECT_THAT(host.profile().writes(), ElementsAre(writes("mwndx", 110), writes("mwndy", 70),
                                                     writes("mwndw", 410), writes("mwndh", 310)));
}

GUI_STARTUP_TEST(SavedNumbers, AreThoseAtTheEnd)
{
    app.run([&] {
        guiMoveWin(30, 40, 420, 320);
        ASSERT_TRUE(pumpUntil([&] { return rectOf(app.shell()) == Rect(30, 40, 420, 320); }));
        settle();
    });
    EXPECT_THAT(host.profile().writes(), ElementsAre(writes("mwndx", 30), writes("mwndy", 40),
                                                     writes("mwndw", 420), writes("mwndh", 320)));
}

// Not those that the host asked for, where the frame got others.
GUI_STARTUP_TEST(SavedNumbers, AreWhatTheFrameHas)
{
    app.run([&] {
        guiMoveWin(32768, 40000, 100, 50);
        ASSERT_TRUE(pumpUntil([&] { return rectOf(app.shell()) == Rect(32767, 32767, 100, 50); }));
    });
    EXPECT_THAT(host.profile().writes(), ElementsAre(writes("mwndx", 32767), writes("mwndy", 32767),
                                                     writes("mwndw", 100), writes("mwndh", 50)));
}

GUI_STARTUP_TEST(SavedNumbers, TakeTheDecorationIntoAccountAfterAMoveAsWell)
{
    app.run([&] {
        guiMoveWin(100, 80, 420, 320);
        ASSERT_TRUE(pumpUntil([&] { return rectOf(app.shell()) == Rect(100, 80, 420, 320); }));
        settle();
        decorWindow = windowAt({35, 10});  // further than any decoration reaches
    });
    EXPECT_EQ(host.profile().intOf("mwndx"), 0);
    EXPECT_EQ(host.profile().intOf("mwndy"), 0);
}

GUI_STARTUP_TEST(SavedNumbers, AreNotWrittenWhenTheSettingForbids)
{
    host.profile().setInt("mwndp", 0);
    app.run([] {});
    EXPECT_THAT(host.profile().writes(), IsEmpty());
}

GUI_STARTUP_TEST(SavedNumbers, AreWrittenForEverySettingButZero)
{
    host.profile().setInt("mwndp", 2);
    app.run([] {});
    EXPECT_EQ(host.profile().writes().size(), 4U);
}

GUI_STARTUP_TEST(SavedNumbers, AreWrittenForANegativeSetting)
{
    host.profile().setInt("mwndp", -1);
    app.run([] {});
    EXPECT_EQ(host.profile().writes().size(), 4U);
}

GUI_STARTUP_TEST(SavedNumbers, AreInTheSectionOfTheHost)
{
    guiSetAppInfo(nullptr, "mine");
    app.run([] {});
    for (const ProfileAccess& access : host.profile().writes()) EXPECT_EQ(access.section, "mine");
    EXPECT_EQ(host.profile().intOf("mwndw", "mine"), 450);
}

GUI_STARTUP_TEST(SavedNumbers, AreReadAsTheSettingIsWhenTheFrameCloses)
{
    app.run([&] { host.profile().setInt("mwndp", 0); });
    EXPECT_THAT(host.profile().writes(), IsEmpty());
}

// The frame stands at 0, 0 of its decoration, which says how far from the edge it is.
GUI_STARTUP_TEST(SavedNumbers, TakeTheDecorationOff)
{
    EXPECT_EQ(savedCorner({0, 0}, {6, 25}), (Point{-6, -25}));
}

GUI_STARTUP_TEST(SavedNumbers, TakeTheThinnestDecorationOff)
{
    EXPECT_EQ(savedCorner({0, 0}, {1, 0}), (Point{-1, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, TakeTheWidestPlausibleDecorationOff)
{
    EXPECT_EQ(savedCorner({0, 0}, {29, 69}), (Point{-29, -69}));
}

GUI_STARTUP_TEST(SavedNumbers, AreTheCornerForADecorationTooWide)
{
    EXPECT_EQ(savedCorner({0, 0}, {30, 10}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, AreTheCornerForADecorationMuchTooWide)
{
    EXPECT_EQ(savedCorner({0, 0}, {35, 10}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, AreTheCornerForADecorationTooHigh)
{
    EXPECT_EQ(savedCorner({0, 0}, {10, 70}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, AreTheCornerForADecorationBeyondTheLeft)
{
    EXPECT_EQ(savedCorner({0, 0}, {-1, 10}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, AreTheCornerForADecorationAboveTheTop)
{
    EXPECT_EQ(savedCorner({0, 0}, {10, -1}), (Point{0, 0}));
}

// A window that is not at 0, 0 of its parent measures the decoration by itself.
GUI_STARTUP_TEST(SavedNumbers, OfAFrameAsideInItsDecorationNeedNoOther)
{
    EXPECT_EQ(savedCorner({20, 0}, {5, 5}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, OfAFrameDownInItsDecorationNeedNoOther)
{
    EXPECT_EQ(savedCorner({0, 40}, {5, 5}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, OfAFrameFarInItsDecorationAreTheCorner)
{
    EXPECT_EQ(savedCorner({100, 100}, {5, 5}), (Point{0, 0}));
}

GUI_STARTUP_TEST(SavedNumbers, OfTheCornerAreTheCorner)
{
    savePlace({0, 0, 400, 300});
    app.run([] { EXPECT_EQ(decorWindow, 666); });
    EXPECT_EQ(host.profile().intOf("mwndx"), 0);
    EXPECT_EQ(host.profile().intOf("mwndy"), 0);
}
