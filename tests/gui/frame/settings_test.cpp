// Which settings a running host is asked for, when, and what for.

#include "gui_test.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

namespace {

ProfileAccess asksInt(const char* key, int whenAbsent, const char* section = "kite")
{
    return {ProfileAccess::Kind::ReadInt, section, key, whenAbsent};
}

ProfileAccess asksText(const char* key, int size, const char* section = "kite")
{
    return {ProfileAccess::Kind::ReadString, section, key, size};
}

}  // namespace

GUI_STARTUP_TEST(Settings, AreAskedForInThisOrder)
{
    app.init();
    EXPECT_THAT(host.profile().accesses(),
                ElementsAre(asksInt("spsec", 0), asksInt("logfm", 0), asksInt("mwndx", -1),
                            asksInt("mwndy", -1), asksInt("mwndw", -1), asksInt("mwndh", -1),
                            asksText("fnamm", 128), asksText("fnamn", 128), asksText("fnamt", 128),
                            asksInt("ch_height", 128), asksText("mouse_hover", 64)));
}

GUI_STARTUP_TEST(Settings, LogNameIsAskedForOnlyWithALog)
{
    host.profile().setInt("logfm", 2);
    app.init();
    const auto& accesses = host.profile().accesses();
    ASSERT_GT(accesses.size(), 2U);
    EXPECT_EQ(accesses[1], asksInt("logfm", 0));
    EXPECT_EQ(accesses[2], asksText("logfn", 1024));
}

GUI_STARTUP_TEST(Settings, ShowingTheFrameAsksForNothingOfTheFrame)
{
    app.init();
    host.profile().clearAccesses();
    app.run([&] { EXPECT_THAT(host.profile().accesses(), IsEmpty()); });
}

GUI_STARTUP_TEST(Settings, ClosingAsksOnceWhetherToSave)
{
    app.init();
    host.profile().clearAccesses();
    app.run([] {});
    EXPECT_THAT(host.profile().accesses("mwndp"), ElementsAre(asksInt("mwndp", 1)));
}

GUI_STARTUP_TEST(Settings, SectionIsTheApplicationName)
{
    guiSetAppInfo("Title", "my host");
    app.run([] {});
    EXPECT_THAT(host.profile().accesses(), Each(Field(&ProfileAccess::section, "my host")));
}

GUI_STARTUP_TEST(Settings, OfOtherSectionsDoNotCount)
{
    guiSetAppInfo(nullptr, "mine");
    for (const char* key : {"mwndx", "mwndy", "mwndw", "mwndh"}) {
        host.profile().setInt(key, 320, "mine");
        host.profile().setInt(key, 330, "kite");
    }
    app.run([&] { EXPECT_EQ(resource<Dimension>(app.shell(), XmNwidth), 320); });
}

GUI_STARTUP_TEST(Settings, StartupHookDoesNothing)
{
    host.profile().setInt("spsec", 5);
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT))); });
}

// Keys that only other functions use stay unread while the frame runs.
GUI_STARTUP_TEST(Settings, OfOtherFunctionsAreLeftAlone)
{
    app.run([] {});
    for (const char* key : {"cddir", "landscape", "lpcmd"})
        EXPECT_THAT(host.profile().accesses(key), IsEmpty()) << key;
}
