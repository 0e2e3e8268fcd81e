// guiSetFocus, with a real keyboard.

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

const std::vector<Kind> kFocusable{Edit,      PushButton, Check, Radio,  ChoiceBox, List,
                                   MultiLine, Combo,      Tree,  Slider, Spin};

// A part of the control has it: the field of a spin box, the scroll bar of a slider, an item of a tree.
bool hasKeyboard(int id)
{
    Widget widget = XmGetFocusWidget(board());
    while (widget && widget != board() && widget != outerOf(id)) widget = XtParent(widget);
    return widget && widget == outerOf(id);
}

}  // namespace

GUI_TEST(Focus, GoesToEveryKindThatTakesTheKeyboard)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown dialog) {
                   ASSERT_TRUE(wm::waitForFocus(dialog.widget()));
                   for (const Kind kind : kFocusable) {
                       guiSetFocus(kind);
                       EXPECT_TRUE(pumpUntil([&] { return hasKeyboard(kind); })) << kind;
                   }
               }});
}

GUI_TEST(Focus, KeysGoThere)
{
    runDialog({.build =
                   [] {
                       guiEdit(1, 0, 0, 60, 0, 0);
                       guiEdit(2, 1, 0, 60, 0, 0);
                       guiCheck(4, 2, 0, 60, "Check");
                   },
               .fill = [] { makeText(MultiLine); },
               .look =
                   [](Shown dialog) {
                       guiSetFocus(2);
                       dialog.type("a");
                       guiSetFocus(4);
                       dialog.key(XK_space);
                       guiSetFocus(MultiLine);
                       dialog.type("b");
                       guiSetFocus(1);
                       dialog.type("c");
                       EXPECT_EQ(textOf(outerOf(1)), "c");
                       EXPECT_EQ(textOf(outerOf(2)), "a");
                       EXPECT_EQ(textOf(innerOf(MultiLine)), "b");
                       EXPECT_EQ(guiGetCheck(4), 1);
                       EXPECT_EQ(guiGetFocus(), 1);
                   }});
}

GUI_TEST(Focus, OfTheFirstEventCountsWhenTheDialogIsShown)
{
    for (const Kind kind : {Check, Radio, PushButton, MultiLine, Combo, Spin, List})
        runDialog({.build = buildSimpleKinds,
                   .fill =
                       [&] {
                           makeOtherKinds();
                           guiSetFocus(Radio);
                           guiSetFocus(kind);  // the last one counts
                       },
                   .look =
                       [&](Shown dialog) {
                           ASSERT_TRUE(wm::waitForFocus(dialog.widget()));
                           EXPECT_TRUE(pumpUntil([&] { return hasKeyboard(kind); })) << kind;
                       }});
}

GUI_TEST(Focus, DoesNotGoToADisabledOrHiddenControl)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown dialog) {
                   ASSERT_TRUE(wm::waitForFocus(dialog.widget()));
                   guiSetFocus(Edit);
                   guiEnable(Check, 0);
                   guiSetVisible(Radio, 0);
                   for (const Kind kind : {Check, Radio}) {
                       guiSetFocus(kind);
                       EXPECT_TRUE(hasKeyboard(Edit)) << kind;
                   }
                   dialog.type("still here");
                   EXPECT_EQ(textOf(outerOf(Edit)), "still here");
               }});
}
