// A handler may do anything while its command is carried out.

#include <Xm/ToggleB.h>

#include "commands_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// Item and button 1 are plain, 2 a check.
void buildCommands()
{
    guiMenu("Menu");
    guiMenuItem("Plain", 'p', GUI_PLAIN, 1);
    guiMenuItem("Check", 'c', GUI_CHECK, 2);
    guiMenuEnd();
    addImage("image");
    guiToolbarButton("image", "Plain", GUI_PLAIN, 1);
    guiToolbarButton("image", "Check", GUI_CHECK, 2);
}

void choosePlainItem()
{
    choose("Menu", "Plain");
}

void chooseCheckItem()
{
    choose("Menu", "Check");
}

void chooseByKey()
{
    Robot::instance().keyHandled(XK_c, Control);
}

void pressPlainButton()
{
    Robot::instance().click(toolbarButtons().at(0));
}

void pressCheckButton()
{
    Robot::instance().click(toolbarButtons().at(1));
}

struct Way {
    const char* name;
    void (*choose)();
    int id;
};

constexpr Way kWays[] = {{"plain item", choosePlainItem, 1},
                         {"check item", chooseCheckItem, 2},
                         {"accelerator", chooseByKey, 2},
                         {"plain button", pressPlainButton, 1},
                         {"check button", pressCheckButton, 2}};

// Each way in a frame of its own. The command counts once, whatever the handler did.
void inEachWay(const std::function<void()>& handler, const std::function<void()>& check)
{
    Recorder& recorder = Recorder::instance();
    for (const Way& way : kWays) {
        SCOPED_TRACE(way.name);
        buildThenRun(buildCommands, [&] {
            recorder.clear();
            recorder.onEvent(GUI_EVENT_COMMAND, way.id, handler);
            way.choose();
            settle();
            recorder.forgetReactions();
            EXPECT_EQ(recorder.events(GUI_EVENT_COMMAND).size(), 1U);
            check();
        });
    }
}

}  // namespace

GUI_STARTUP_TEST(CommandHandlers, Restart)
{
    inEachWay([] { guiRestart(); },
              [] {
                  EXPECT_EQ(Recorder::instance().count(GUI_EVENT_INIT), 1);
                  EXPECT_FALSE(findWidget("v_toolbar"));
                  EXPECT_TRUE(isShown(entry("Menu")));
              });
}

GUI_STARTUP_TEST(CommandHandlers, BuildAnew)
{
    inEachWay(
        [] {
            guiMenu("New");
            guiMenuItem("Other", 0, GUI_CHECK, 2);
            guiMenuEnd();
            guiToolbarButton("image", "New", GUI_CHECK, 2);
        },
        [] {
            EXPECT_EQ(toolbarButtons().size(), 1U);
            choose("New", "Other");
            EXPECT_TRUE(XmToggleButtonGetState(toolbarButtons().front()));
        });
}

GUI_STARTUP_TEST(CommandHandlers, Close)
{
    for (const Way& way : kWays) {
        SCOPED_TRACE(way.name);
        bool isClosed = false;
        buildThenRun(buildCommands, [&] {
            recorder.onEvent(GUI_EVENT_COMMAND, way.id, [&] {
                guiClose(0);
                isClosed = true;
            });
            way.choose();
        });
        EXPECT_TRUE(isClosed);
        recorder.forgetReactions();
    }
}

GUI_STARTUP_TEST(CommandHandlers, WaitInABox)
{
    inEachWay(
        [&] {
            app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
            guiInfoBox("Wait.");
        },
        [] { EXPECT_EQ(toolbarButtons().size(), 2U); });
}

// Everything that the command hangs on goes while the handler waits.
GUI_STARTUP_TEST(CommandHandlers, RestartAndWaitInABox)
{
    inEachWay(
        [&] {
            guiRestart();
            app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
            guiInfoBox("Wait.");
        },
        [] { EXPECT_FALSE(findWidget("v_toolbar")); });
}

GUI_STARTUP_TEST(CommandHandlers, DestroyAllButtons)
{
    inEachWay(
        [] {
            for (Widget const button : toolbarButtons()) XtDestroyWidget(button);
            EXPECT_EQ(guiEnableCommand(1, 0), 0);
            EXPECT_EQ(guiSetCommandCheck(2, 0), 0);
        },
        [] {
            EXPECT_EQ(guiGetCommandCheck(2), 0);
            EXPECT_FALSE(XtIsSensitive(entry("Plain")));
        });
}

// One after the other, for a host without a window handler.
GUI_STARTUP_TEST(CommandHandlers, CommandsGoOnAfterwards)
{
    app.windowHandler = nullptr;
    buildThenRun(buildCommands, [&] {
        recorder.clear();
        pressCheckButton();
        chooseByKey();
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, 2, 1), toHost(GUI_EVENT_COMMAND, 2, 0)));
    });
}

// The click is still being handled in the button when the close request has taken the toolbar away.
GUI_STARTUP_TEST(CommandHandlers, MayRestartTheFrameWhileTheMenuOfAToolbarButtonWaits)
{
    int picked = -1;
    recorder.onEvent(GUI_EVENT_COMMAND, 0, [] {
        guiRestart();
        guiToolbarButton("image", "New", GUI_PLAIN, 3);
    });
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        guiCreatePopMenu();
        guiAppendPopMenu("Item");
        picked = guiShowPopMenu(0, 0, 0, 0);
    });
    buildThenRun(buildCommands, [&] {
        app.whenShown("p_menu", [this](Shown menu) {
            wm::requestClose(app.shell());
            EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND)));
            menu.key(XK_Escape);
        });
        pressPlainButton();
        EXPECT_TRUE(pumpUntil([&] { return picked == 0; }));
        EXPECT_TRUE(pumpUntil([] { return toolbarButtons().size() == 1; }));
    });
}
