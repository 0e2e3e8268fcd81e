// Boxes that the user closes with the window manager instead of answering.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

using Close = void (*)(wm::Client);

void expectClosed(const std::string& call, Close close = wm::close)
{
    const BoxKind& kind = boxKind(call);
    Script::instance().whenShown(kind.widget, [&](Shown box) { close(box.widget()); });
    EXPECT_EQ(kind.ask("Still there?"), kind.whenClosed) << call;
    EXPECT_FALSE(findWidget(kind.widget)) << call;
    EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd")) << call;
}

}  // namespace

GUI_TEST(BoxCloseRequest, EndsInfoBox)
{
    expectClosed("guiInfoBox");
}

GUI_TEST(BoxCloseRequest, EndsErrorBox)
{
    expectClosed("guiErrorBox");
}

GUI_TEST(BoxCloseRequest, AnswersNoToOkCancel)
{
    expectClosed("guiOkCancelBox");
}

GUI_TEST(BoxCloseRequest, AnswersNoToYesNo)
{
    expectClosed("guiYesNoBox");
}

GUI_TEST(BoxCloseRequest, CancelsYesNoCancel)
{
    expectClosed("guiYesNoCancelBox");
}

GUI_TEST(BoxCloseRequest, CancelsThePrompt)
{
    expectClosed("guiGetTextBox");
}

GUI_TEST(BoxCloseRequest, EmptiesTheBufferOfThePrompt)
{
    char buffer[16] = "abc";
    app.whenShown("v_promptbox", [](Shown box) {
        box.type("def");
        box.closeByWindowManager();
    });
    EXPECT_EQ(guiGetTextBox("Name", buffer, sizeof buffer, 0), -1);
    EXPECT_STREQ(buffer, "");
}

GUI_TEST(BoxCloseRequest, ComesFromTheDecorationAsWell)
{
    for (const BoxKind& kind : allBoxes()) expectClosed(kind.call, wm::closeByDecoration);
}

GUI_TEST(BoxCloseRequest, RaisesNoEvent)
{
    recorder.clear();
    for (const BoxKind& kind : allBoxes()) expectClosed(kind.call);
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
}

GUI_TEST(BoxCloseRequest, OfTheFrameMeanwhileRaisesNothing)
{
    recorder.clear();
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            wm::requestClose(app.shell());
            settle();
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_TRUE(isShown(app.find("v_mainwnd")));
        });
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
}

GUI_TEST(BoxCloseRequest, OfTheOuterBoxWaitsForTheInnerOne)
{
    int inner = -5;
    bool isOuterShown = false;
    app.whenShown("v_infobox", [&](Shown outer) {
        app.whenShown("v_askbox", [&](Shown box) {
            wm::requestClose(outer.widget());
            settle();
            EXPECT_TRUE(isShown(box.widget()));
            box.key(XK_Return);
        });
        inner = guiYesNoBox("Inner?");
        isOuterShown = isShown(outer.widget());
    });
    guiInfoBox("Outer");
    EXPECT_EQ(inner, 1);
    EXPECT_TRUE(isOuterShown);
}
