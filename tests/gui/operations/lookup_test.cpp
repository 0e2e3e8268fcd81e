// Which widget an id stands for.

#include <Xm/BulletinB.h>
#include <Xm/Label.h>
#include <Xm/Scale.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

constexpr int kLargest = 32767;

bool isMissing(int id)
{
    const std::string message =
        "GetTextLen: no control with id " + std::to_string(id) + " in the dialog";
    return errorsDuring([&] { guiGetTextLen(id); }) == std::vector<std::string>{message};
}

}  // namespace

GUI_TEST(Lookup, TheFirstChildOfTheIdCounts)
{
    runDialog({.fill = [] {
        Widget const first = makeSlider(8);
        Widget const second = makeProgress(8);
        guiSetPos(8, 40);
        EXPECT_EQ(resource<int>(first, XmNvalue), 40);
        EXPECT_EQ(resource<int>(second, XmNvalue), 0);
    }});
}

GUI_TEST(Lookup, OfTheLargestIdBesideAnonymousControls)
{
    runDialog({.build =
                   [] {
                       guiLabel(GUI_ANONYMOUS, 0, 0, 20, "before");
                       guiLine(GUI_ANONYMOUS, 1, 1, 0, 20);
                       guiEdit(kLargest, 2, 0, 40, 0, 0);
                       guiLabel(GUI_ANONYMOUS, 3, 0, 20, "behind");
                   },
               .fill =
                   [] {
                       guiSetText(kLargest, "abc");
                       EXPECT_EQ(textOf(outerOf(kLargest)), "abc");
                       EXPECT_EQ(guiGetTextLen(kLargest), 3);
                   }});
}

GUI_TEST(Lookup, AnonymousControlsAreNotTheLargestId)
{
    runDialog({.build = [] { guiLabel(GUI_ANONYMOUS, 0, 0, 20, "nobody"); },
               .fill =
                   [] {
                       makeSpin(-1);
                       EXPECT_TRUE(isMissing(kLargest));
                       EXPECT_TRUE(isMissing(65535));
                   }});
}

GUI_TEST(Lookup, OfTheCancelButton)
{
    runDialog({.build =
                   [] {
                       guiLabel(GUI_ANONYMOUS, 0, 0, 20, "nobody");
                       guiLabel(1, 1, 0, 20, "other");
                       guiButton(GUI_CANCEL_BUTTON, 2, 0, 40, "Cancel", 0);
                   },
               .fill =
                   [] {
                       guiSetText(GUI_CANCEL_BUTTON, "Stop");
                       EXPECT_EQ(labelOf(outerOf(0)), "Stop");
                       EXPECT_EQ(labelOf(outerOf(1)), "other");
                       EXPECT_EQ(guiIdStatus(GUI_CANCEL_BUTTON), 1);
                   }});
}

GUI_TEST(Lookup, OnlyTheDialogsOwnChildrenAreControls)
{
    runDialog({.fill = [] {
        Widget const room = XtVaCreateManagedWidget("room", xmBulletinBoardWidgetClass, board(),
                                                    XmNuserData, XtPointer(-1), nullptr);
        XtVaCreateManagedWidget("inner", xmScaleWidgetClass, room, XmNuserData,
                                XtPointer(std::intptr_t{9 << 16 | Slider}), nullptr);
        EXPECT_EQ(guiIdStatus(9), -1);
    }});
}

// Of a kind that has no place for a tag.
GUI_TEST(Lookup, PlainWidgetsOfTheHostsAreNoControls)
{
    runDialog({.build = [] { guiLabel(9, 0, 0, 20, "Label"); },
               .fill =
                   [] {
                       XtVaCreateManagedWidget("plain", coreWidgetClass, board(), XmNwidth, 5,
                                               XmNheight, 5, nullptr);
                       EXPECT_EQ(guiIdStatus(9), 1);
                       EXPECT_EQ(guiIdStatus(0), -1);
                   }});
}

GUI_TEST(Lookup, ADestroyedControlIsGoneAtOnce)
{
    runDialog({.build = [] { guiEdit(2, 0, 0, 40, 0, 0); },
               .look =
                   [](Shown) {
                       guiSetText(2, "abc");
                       Widget const edit = outerOf(2);
                       XtDestroyWidget(edit);
                       EXPECT_EQ(guiIdStatus(2), -1);
                       EXPECT_TRUE(isMissing(2));
                   }});
}

// Within a handler Xt only notes the destruction, and the widget stays a child until the handler returns.
GUI_TEST(Lookup, AControlThatIsBeingDestroyedIsNotTouched)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] {
        Widget const edit = outerOf(2);
        XtDestroyWidget(edit);
        ASSERT_EQ(outerOf(2), edit);
        guiSetText(2, "new");
        EXPECT_EQ(textOf(edit), "");
        EXPECT_EQ(labelOf(findWidget("twin")), "new") << "the next of this id";
        XtDestroyWidget(findWidget("twin"));
        EXPECT_TRUE(isMissing(2));
    });
    runDialog({.build =
                   [] {
                       guiButton(1, 0, 0, 40, "Destroy", 0);
                       guiEdit(2, 1, 0, 40, 0, 0);
                   },
               .look =
                   [&](Shown dialog) {
                       XtVaCreateManagedWidget("twin", xmLabelWidgetClass, board(), XmNuserData,
                                               XtPointer(std::intptr_t{2 << 16 | Label}), nullptr);
                       EXPECT_EQ(guiIdStatus(2), 1);
                       dialog.click("Destroy");
                       EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 1);
                       EXPECT_EQ(guiIdStatus(2), -1);
                   }});
}

GUI_TEST(Lookup, IsInTheInnermostDialog)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        guiDialog("Inner");
        guiEdit(3, 0, 0, 40, 0, 0);
        recorder.onEvent(GUI_EVENT_INIT, [] {
            guiSetText(3, "inner");
            EXPECT_EQ(guiGetTextLen(3), 5);
            EXPECT_TRUE(isMissing(2));
            guiClose(0);
        });
        guiRunDialog(Recorder::innerDialogHandler());
        EXPECT_EQ(guiGetTextLen(2), 0);
        EXPECT_EQ(guiGetTextLen(3), 8) << "the outer dialog's";
    });
    runDialog({.build =
                   [] {
                       guiButton(1, 0, 0, 40, "Inner", 0);
                       guiEdit(2, 1, 0, 40, 0, 0);
                       guiEdit(3, 2, 0, 40, 0, 0);
                   },
               .fill = [] { guiSetText(3, "the other"); },
               .look =
                   [&](Shown dialog) {
                       guiSetText(3, "outer ed");
                       dialog.click("Inner");
                       EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 1);
                   }});
}
