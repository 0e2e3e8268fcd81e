// Which operations keep events back, for how long, and which let them pass again.

#include <climits>

#include <Xm/List.h>
#include <Xm/Text.h>

#include "hand_made_controls.h"
#include "operation_table.h"
#include "probe.h"

using namespace kite::testing;

namespace {

// Those that change a control.
const std::set<std::string> kLowering = {"guiEnable",     "guiSetFocus",   "guiSetVisible",
                                         "guiSetText",    "guiSetTextDbl", "guiSetTextInt",
                                         "guiInsertText", "guiSetCheck",   "guiSetRange",
                                         "guiSetImage",   "guiSetPos"};

void build()
{
    buildSimpleKinds();
    buildProbe();
}

void keepBack()
{
    guiGetPos(Slider);
    ASSERT_FALSE(doEventsPass());
}

void letPass()
{
    guiSetRange(Slider, 1, 100);
    ASSERT_TRUE(doEventsPass());
}

void withBuiltKinds(const std::function<void()>& body)
{
    runDialog({.build = build, .fill = makeOtherKinds, .look = [&](Shown) { body(); }});
}

}  // namespace

GUI_TEST(Suppression, GetPosKeepsEventsBackForEveryKind)
{
    withBuiltKinds([] {
        for (const Kind kind : {ChoiceBox, List, MultiLine, Progress, Tree, Slider, Spin}) {
            letPass();
            guiGetPos(kind);
            EXPECT_FALSE(doEventsPass()) << kind;
        }
        letPass();
    });
}

GUI_TEST(Suppression, ARefusedGetPosDoesNot)
{
    withBuiltKinds([] {
        EXPECT_MISUSE(guiGetPos(Edit), "GetPos: unsuitable control type (id = 2)", -1);
        EXPECT_TRUE(doEventsPass());
        EXPECT_MISUSE(guiGetPos(-1), "GetPos: wrong id -1", -1);
        EXPECT_TRUE(doEventsPass());
    });
}

GUI_TEST(Suppression, OperationsThatChangeAControlEndIt)
{
    guiWriteLine("one");
    withBuiltKinds([] {
        for (const Operation& operation : controlOperations())
            for (const int kind : operation.kinds) {
                SCOPED_TRACE(operation.function + ' ' + std::to_string(kind));
                keepBack();
                operation.call(kind);
                EXPECT_EQ(doEventsPass(), kLowering.contains(operation.function));
            }
        letPass();
    });
}

GUI_TEST(Suppression, OthersDoNotBeginIt)
{
    guiWriteLine("one");
    withBuiltKinds([] {
        for (const Operation& operation : controlOperations()) {
            if (operation.function == "guiGetPos") continue;
            for (const int kind : operation.kinds) {
                letPass();
                operation.call(kind);
                EXPECT_TRUE(doEventsPass()) << operation.function << ' ' << kind;
            }
        }
    });
}

GUI_TEST(Suppression, ARefusedOperationDoesNotEndIt)
{
    withBuiltKinds([] {
        keepBack();
        EXPECT_MISUSE(guiSetText(Line, "no"), "SetText: unsuitable control type (id = 9)");
        EXPECT_FALSE(doEventsPass());
        EXPECT_MISUSE(guiSetCheck(99, 1), "SetCheck: no control with id 99 in the dialog");
        EXPECT_FALSE(doEventsPass());
        letPass();
    });
}

GUI_TEST(Suppression, SetPosOfALineThatIsNotThereKeepsEventsBack)
{
    guiWriteLine("one");
    withBuiltKinds([] {
        for (const int line : {-1, INT_MIN, guiOutputLineCount() + 1, INT_MAX}) {
            letPass();
            guiSetPos(MultiLine, line);
            EXPECT_FALSE(doEventsPass()) << line;
        }
        guiSetText(MultiLine, "");
        letPass();
        guiSetPos(MultiLine, 0);
        EXPECT_FALSE(doEventsPass()) << "the text is empty";
        guiSetText(MultiLine, "one\ntwo");
        keepBack();
        guiSetPos(MultiLine, 1);
        EXPECT_TRUE(doEventsPass());
    });
}

GUI_TEST(Suppression, TheUsersButtonIsSilentUntilAControlIsChanged)
{
    const Event pressed = toDialog(GUI_EVENT_COMMAND, PushButton);
    runDialog({.build = build, .fill = makeOtherKinds, .look = [&](Shown dialog) {
                   guiGetPos(List);
                   dialog.click("Button");
                   dialog.click("Button");
                   EXPECT_EQ(recorder.count(pressed), 0);
                   guiSetText(Label, "changed");
                   dialog.click("Button");
                   EXPECT_EQ(recorder.count(pressed), 1);
               }});
}

GUI_TEST(Suppression, WhatTheToolkitTellsOfTheChangeRaisesNothing)
{
    guiWriteLine("one");
    withBuiltKinds([] {
        struct {
            Kind kind;
            const char* callback;
            std::function<void()> change;
        } const changes[] = {
            {Edit, XmNvalueChangedCallback, [] { guiSetText(Edit, "new"); }},
            {Edit, XmNmotionVerifyCallback, [] { guiSetPos(Edit, 1); }},
            {MultiLine, XmNvalueChangedCallback, [] { guiSetText(MultiLine, "a\nb"); }},
            {MultiLine, XmNmotionVerifyCallback, [] { guiSetPos(MultiLine, 1); }},
        };
        for (const auto& change : changes) {
            const ProbeOnChange probe{innerOf(change.kind), change.callback};
            change.change();
            EXPECT_GT(probe.changes(), 0) << change.kind;
            EXPECT_EQ(probe.passed(), 0) << change.kind;
            EXPECT_TRUE(doEventsPass());
        }
    });
}

// The fields of a combo and a spin box change as their owner is changed.
GUI_TEST(Suppression, FieldsOfComposedControlsRaiseNothing)
{
    withBuiltKinds([] {
        const auto fieldOf = [](int id) { return resource<Widget>(outerOf(id), XmNtextField); };
        const ProbeOnChange combo{fieldOf(Combo), XmNvalueChangedCallback};
        const ProbeOnChange spin{fieldOf(Spin), XmNvalueChangedCallback};
        guiSetText(Combo, "green");
        guiSetText(Spin, "5");
        guiSetPos(Spin, 6);
        guiSetRange(Spin, 20, 30);
        EXPECT_GT(combo.changes(), 0);
        EXPECT_GT(spin.changes(), 0);
        EXPECT_EQ(combo.passed() + spin.passed(), 0);
    });
}

// Scrolling is no change of a control: the handler hears of it.
GUI_TEST(Suppression, SetTopLetsEventsPass)
{
    guiWriteLine("one");
    guiWriteLine("two");
    withBuiltKinds([] {
        const ProbeOnChange caret{innerOf(MultiLine), XmNmotionVerifyCallback};
        XmTextSetInsertionPosition(innerOf(MultiLine), 0);
        const int before = caret.changes();
        guiSetTop(MultiLine, 2);
        EXPECT_GT(caret.changes(), before);
        EXPECT_EQ(caret.passed(), caret.changes());
    });
}
