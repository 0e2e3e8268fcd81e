// The edit menu while its text goes, and where there is none.

#include <Xm/Text.h>

#include "popups_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr int kEdit = 1, kOther = 2, kCombo = 3, kLabel = 4;

void build()
{
    guiEdit(kOther, 0, 0, 60, 0, 0);
    guiEdit(kEdit, 1, 0, 60, 0, 0);
    guiText(kText, 2, 3, 0, 60, 0);
    guiCombo(kCombo, 5, 0, 60);
    guiLabel(kLabel, 6, 0, 60, "Label");
}

// The menu does not come up.
void expectNoMenu(Widget over, unsigned button = RightButton, Point offset = {4, 4})
{
    EXPECT_THAT(only(GUI_EVENT_CONTEXT,
                     eventsDuring([&] { Robot::instance().click(over, button, offset); })),
                IsEmpty());
    EXPECT_EQ(popup(), nullptr);
}

}  // namespace

GUI_TEST(EditMenuEnd, ComesWithTheDialog)
{
    for (const int id : std::initializer_list<int>{kEdit, kText, kCombo}) {
        SCOPED_TRACE(id);
        ASSERT_EQ(guiDialog("Dialog"), 0);
        build();
        app.whenShown("v_dlgbbr", [&](Shown) {
            app.whenShown("p_menu", [](Shown) { soon([] { guiClose(5); }); });
            robot.moveTo(controlOf(id), Point{9, 9});
            robot.click(RightButton);
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 5);
        EXPECT_TRUE(isPopupGone());
    }
    app.click("v_text");
    app.type("typed");
    EXPECT_EQ(textOf(app.find("v_text")), "typed");
}

GUI_STARTUP_TEST(EditMenuEnd, ComesWithTheFrame)
{
    app.run([this] {
        app.whenShown("p_menu", [](Shown) { soon([] { guiClose(0); }); });
        robot.moveTo(app.find("v_text"));
        robot.click(RightButton);
        pumpUntil([] { return guiGetTopWnd() == nullptr; });
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
}

// What is picked then is for nobody.
GUI_TEST(EditMenuEnd, TextMayGoBeforeTheChoice)
{
    guiCopyText("Clip");
    for (const char* const label : {"Cut", "Copy", "Paste", "Clear", "Select All"}) {
        SCOPED_TRACE(label);
        runDialog(build, [&](Shown) {
            guiSetText(kEdit, "Text");
            guiSetText(kOther, "Other");
            app.whenShown("p_menu", [&](Shown menu) {
                XtDestroyWidget(controlOf(kEdit));
                picking(label)(menu);
            });
            robot.click(controlOf(kEdit), RightButton);
            EXPECT_TRUE(isPopupGone());
            EXPECT_EQ(textOf(controlOf(kOther)), "Other");
        });
    }
}

// The handler of the first event of pasting: the selection was removed, nothing is inserted yet.
GUI_TEST(EditMenuEnd, HandlerOfAChangeMayCloseTheDialog)
{
    guiCopyText("Clip");
    for (const int id : std::initializer_list<int>{kEdit, kText, kCombo})
        for (const char* const label : {"Cut", "Paste", "Clear"}) {
            SCOPED_TRACE(std::to_string(id) + label);
            ASSERT_EQ(guiDialog("Dialog"), 0);
            build();
            app.whenShown("v_dlgbbr", [&](Shown) {
                guiSetText(id, "Text");
                Widget const text = id == kCombo ? resource<Widget>(controlOf(id), XmNtextField)
                                                 : (id == kEdit ? controlOf(id) : innerOf(id));
                XmTextSetSelection(text, 0, 4, XtLastTimestampProcessed(XtDisplay(text)));
                recorder.onEvent(id == kText ? GUI_EVENT_CURSOR : GUI_EVENT_TEXT_CHANGED, id,
                                 [] { guiClose(21); });
                app.whenShown("p_menu", picking(label));
                robot.moveTo(text, Point{9, 9});
                robot.click(RightButton);
            });
            EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 21);
            recorder.forgetReactions();
            EXPECT_TRUE(isPopupGone());
        }
}

GUI_TEST(EditMenuEnd, OtherButtonsAndPlacesHaveNone)
{
    expectNoMenu(app.find("v_text"), LeftButton);
    runDialog(build, [](Shown) {
        for (const int id : std::initializer_list<int>{kEdit, kCombo, kText}) {
            expectNoMenu(controlOf(id), LeftButton);
            guiEnable(id, 0);
            settle();
            expectNoMenu(controlOf(id));
        }
        expectNoMenu(controlOf(kLabel));
        expectNoMenu(newestBoard(), RightButton, {2, 2});
    });
    ASSERT_TRUE(wm::waitForFocus(app.shell())) << "the dialog has gone from the screen";
    expectNoMenu(app.find("v_menubar"), RightButton, {300, 4});
}

// A menu that the host was building is not shown instead; it is forgotten.
GUI_TEST(EditMenuEnd, TakesThePlaceOfTheMenuUnderConstruction)
{
    buildPopup({"A", "B"});
    app.whenShown("p_menu", [](Shown menu) {
        EXPECT_EQ(menu.labels().front(), "Cut");
        dismiss(menu);
    });
    robot.click(app.find("v_text"), RightButton);
    EXPECT_TRUE(isPopupGone());
    EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 0);
}

GUI_STARTUP_TEST(EditMenuEnd, HoveringEndsWhenTheMenuComes)
{
    host.profile().setString("mouse_hover", "0.4");
    app.run([this] {
        runDialog(build, [this](Shown) {
            for (const int id : std::initializer_list<int>{kEdit, kText, kCombo}) {
                SCOPED_TRACE(id);
                robot.moveTo(newestBoard(), Point{2, 2});
                robot.moveTo(controlOf(id), Point{9, 9});
                recorder.clear();
                app.whenShown("p_menu", [&](Shown menu) {
                    EXPECT_TRUE(holdsFor([&] { return recorder.count(GUI_EVENT_HOVER) == 0; },
                                         milliseconds{600}));
                    dismiss(menu);
                });
                robot.click(controlOf(id), RightButton, Point{9, 9});
            }
        });
    });
}
