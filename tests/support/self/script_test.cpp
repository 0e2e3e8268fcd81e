// script_test.cpp: actions run when what they wait for is shown, in nested loops too.

#include "gui_test.h"

#include "probe_window.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(Script, ActsOnABoxWhileItsCallWaits)
{
    app.whenShown("v_askbox", [](Shown box) {
        EXPECT_EQ(box.title(), "Kite");
        EXPECT_EQ(box.message(), "Delete\nthe file?");
        EXPECT_THAT(box.labels(), ::testing::IsSupersetOf({"Yes", "No"}));
        box.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Delete\nthe file?"), GUI_YES);
}

GUI_TEST(Script, TakesOneActionForEachAppearance)
{
    app.whenShown("v_askbox", [](Shown box) { box.click("Yes"); });
    app.whenShown("v_askbox", [](Shown box) { box.click("No"); });
    EXPECT_EQ(guiYesNoBox("first"), GUI_YES);
    EXPECT_EQ(guiYesNoBox("second"), GUI_NO);
}

GUI_TEST(Script, ActsOnBoxesWithinBoxes)
{
    std::vector<std::string> order;
    app.whenShown("v_askbox", [&](Shown box) {
        guiInfoBox("inner");
        order.push_back("outer");
        box.click("No");
    });
    app.whenShown("v_infobox", [&](Shown box) {
        order.push_back("inner");
        box.key(XK_Return);
    });
    EXPECT_EQ(guiYesNoBox("outer"), GUI_NO);
    EXPECT_THAT(order, ElementsAre("inner", "outer"));
}

GUI_TEST(Script, ClosesABoxByTheWindowManager)
{
    app.whenShown("v_askbox", [](Shown box) { box.closeByWindowManager(); });
    EXPECT_EQ(guiYesNoCancelBox("Save?"), GUI_CANCEL);
}

GUI_TEST(Script, ReadsAndFillsTextFields)
{
    char buffer[20] = "abc";
    app.whenShown("v_promptbox", [](Shown box) {
        EXPECT_THAT(box.texts(), ElementsAre("abc"));
        EXPECT_EQ(box.message(), "Name:");
        box.type("\b\b\bHi!");
        box.key(XK_Return);
    });
    EXPECT_EQ(guiGetTextBox("Name:", buffer, sizeof buffer, 0), 3);
    EXPECT_STREQ(buffer, "Hi!");
}

GUI_TEST(Script, PlaysStepsInTheirOrder)
{
    int value = 0;
    std::vector<int> seen;
    script.inOrder({{"value is 1", [&] { return value == 1; },
                     [&] {
                         seen.push_back(value);
                         value = 5;
                     }},
                    {"value is 5", [&] { return value == 5; }, [&] { seen.push_back(value); }}});
    value = 1;
    EXPECT_TRUE(pumpUntil([&] { return seen.size() == 2; }));
    EXPECT_THAT(seen, ElementsAre(1, 5));
}

GUI_TEST(Script, MisuseIsOneLine)
{
    EXPECT_MISUSE(guiGetDropName(nullptr, 5), "GetDropName: invalid buffer", -1);
    char buffer[5];
    EXPECT_MISUSE(guiGetTextBox("?", buffer, 1, 0), "GetTextBox: invalid buffer", -1);
}

GUI_TEST(Script, MisuseMayBeWithoutAResult)
{
    EXPECT_MISUSE(guiErrorBox("nothing is wrong"), "nothing is wrong");
}

GUI_TEST(Script, SeesNoErrorWhereThereIsNone)
{
    EXPECT_THAT(errorsDuring([] { guiSetProgress(10); }), ::testing::IsEmpty());
}

GUI_TEST(Recorder, ReactsInsideTheHandler)
{
    int answer = -1;
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE,
                     [&] { answer = guiOkCancelBox("Leave?"); });
    app.whenShown("v_askbox", [](Shown box) { box.key(XK_Return); });
    wm::close(app.shell());
    EXPECT_TRUE(pumpUntil([&] { return answer == GUI_OK; }));
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT),
                                               toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
}

GUI_STARTUP_TEST(Recorder, TellsTheHostCallbackFromTheWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_INIT))); });
}

GUI_TEST(Widgets, AreFoundByNameAndRead)
{
    guiSetStatusLine("Ready");
    guiSetProgress(40);
    EXPECT_EQ(labelOf(app.find("v_sline")), "Ready");
    EXPECT_EQ(resource<int>(app.find("v_gauge"), XmNvalue), 40);
    EXPECT_TRUE(isShown(app.find("v_text")));
    EXPECT_EQ(findWidget("v_nothing"), nullptr);
    ProbeWindow window;
    EXPECT_EQ(app.find("v_probetext"), window.text) << "popups are searched too";
}
