// Boxes that have no window to belong to.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

// None of the calls waits for anybody.
void expectNothing()
{
    for (const BoxKind& kind : allBoxes())
        EXPECT_EQ(kind.ask("Anybody?"), kind.whenNotCreated) << kind.call;
    EXPECT_EQ(guiTipBox("Anybody?"), 0);

    char buffer[16] = "abc";
    EXPECT_EQ(guiGetTextBox("Anybody?", buffer, sizeof buffer, 0), -1);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(guiGetTextBox("Anybody?", nullptr, 16, 0), -1) << "The message is lost.";
}

}  // namespace

GUI_STARTUP_TEST(BoxNotCreated, BeforeTheStart)
{
    expectNothing();
    EXPECT_FALSE(guiGetTopWnd());
}

GUI_STARTUP_TEST(BoxNotCreated, AfterTheFrameWasClosed)
{
    app.run([] {});
    expectNothing();
    EXPECT_FALSE(guiGetTopWnd());
}

GUI_TEST(BoxNotCreated, WithoutATopWindow)
{
    Widget const main = app.find("v_mainwnd");
    const int before = widgetCount();
    guiSetTopWnd(nullptr);
    for (const BoxKind& kind : allBoxes())
        EXPECT_EQ(kind.ask("Anybody?"), kind.whenNotCreated) << kind.call;
    EXPECT_FALSE(guiGetTopWnd());
    guiSetTopWnd(main);
    EXPECT_EQ(widgetCount(), before);
}
