// What a handler opens while an edit is left has the keyboard, although the toolkit is just moving it.

#include "popups_support.h"

using namespace kite::testing;

namespace {

enum Id { kEdit = 2, kNext = 18, kButton = 3, kImage = 10 };

struct Way {
    const char* name;
    std::function<void(Shown)> leave;
};

const Way kByKey{"Tab", [](Shown dialog) { dialog.key(XK_Tab); }};

const std::vector<Way>& waysToLeave()
{
    static const std::vector<Way> all{
        kByKey,
        {"a click on a button", [](Shown) { Robot::instance().click(controlOf(kButton)); }},
        {"a click on an image", [](Shown) { Robot::instance().click(controlOf(kImage)); }},
    };
    return all;
}

// In the handler, once for each way.
void openWhileLeaving(const std::function<void()>& open,
                      const std::vector<Way>& ways = waysToLeave())
{
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        bool isOpened = false;
        Recorder::instance().forgetReactions();
        Recorder::instance().onEvent(GUI_EVENT_LEFT, kEdit, [&] {
            if (!std::exchange(isOpened, true)) open();
        });
        runDialog(
            [] {
                guiEdit(kEdit, 0, 0, 60, 0, 0);
                guiEdit(kNext, 1, 0, 60, 0, 0);
                guiButton(kButton, 2, 0, 60, "Button", 0);
                guiImage(kImage, 4, 2, 0, 60, 1);
            },
            [&](Shown dialog) {
                ASSERT_TRUE(hasFocus(kEdit));
                way.leave(dialog);
                EXPECT_TRUE(
                    pumpUntil([&] { return isOpened && guiGetTopWnd() == dialog.widget(); }));
                EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
            });
    }
}

int runInnerDialog(const std::function<void(Shown)>& use)
{
    EXPECT_EQ(guiDialog("Inner"), 0);
    guiEdit(5, 0, 0, 60, 0, 0);
    guiButton(1, 1, 0, 30, "OK", 1);
    guiButton(0, 1, 40, 30, "Cancel", 0);
    App::instance().whenShown("v_dlgbbr", use);
    return guiRunDialog([](int event, int id, int, int) {
        if (event == GUI_EVENT_COMMAND) guiClose(10 + id);
        return 0;
    });
}

}  // namespace

GUI_TEST(OpenedWhileLeaving, DialogHasTheKeyboard)
{
    openWhileLeaving([] {
        std::string typed;
        EXPECT_EQ(runInnerDialog([&](Shown inner) {
                      inner.type("h");
                      EXPECT_EQ(guiGetFocus(), 5);
                      char text[10];
                      guiGetText(5, text, sizeof text);
                      typed = text;
                      inner.key(XK_Return);
                  }),
                  11);
        EXPECT_EQ(typed, "h");
    });
    openWhileLeaving(
        [] { EXPECT_EQ(runInnerDialog([](Shown inner) { inner.key(XK_Escape); }), 10); });
}

GUI_TEST(OpenedWhileLeaving, BoxHasTheKeyboard)
{
    openWhileLeaving([] {
        char text[10] = "";
        App::instance().whenShown("v_promptbox", [](Shown box) {
            box.type("h");
            box.key(XK_Return);
        });
        EXPECT_EQ(guiGetTextBox("Name", text, sizeof text, 0), 1);
        EXPECT_STREQ(text, "h");
    });
}

// By key: the release of a mouse button may take a menu down.
GUI_TEST(OpenedWhileLeaving, PopupMenuHasTheKeyboard)
{
    openWhileLeaving(
        [] {
            EXPECT_EQ(runPopup([](Shown menu) {
                          menu.key(XK_Down);
                          menu.key(XK_Return);
                      }),
                      2);
        },
        {kByKey});
}
