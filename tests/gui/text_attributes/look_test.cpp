// What the screen shows of colours and fonts.

#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

screen::Colour shown(Pixel pixel)
{
    return screen::colourOf(guiGetTopWnd(), pixel);
}

bool hasColours(Widget widget, Pixel front, Pixel back)
{
    const screen::Picture picture = screen::grab(widget);
    return picture.count(shown(front)) > 10 && picture.count(shown(back)) > 10;
}

}  // namespace

GUI_TEST(TextAttLook, OfTextsIsInTheirColours)
{
    runDialog({.build = buildSimpleKinds,
               .fill =
                   [] {
                       makeOtherKinds();
                       guiSetText(Edit, "Edit");
                       guiSetText(Combo, "green");
                       guiSetText(Spin, "88");
                   },
               .look =
                   [](Shown) {
                       for (const Kind kind : {Label, Edit, PushButton, Check, Radio, List,
                                               MultiLine, Combo, Tree, Spin}) {
                           SCOPED_TRACE(kind);
                           EXPECT_FALSE(hasColours(innerOf(kind), red(), navy()));
                           guiSetTextAtt(kind, 0, "#ff0000/#000080");
                           EXPECT_TRUE(
                               pumpUntil([&] { return hasColours(innerOf(kind), red(), navy()); }));
                       }
                   }});
}

GUI_TEST(TextAttLook, OfAProgressBarIsFilledInItsColour)
{
    runDialog({.fill =
                   [] {
                       makeProgress(Progress);
                       guiSetPos(Progress, 50);
                   },
               .look =
                   [](Shown) {
                       Widget const bar = barOf(innerOf(Progress));
                       guiSetTextAtt(Progress, 0, "#ff0000/#000080");
                       EXPECT_TRUE(pumpUntil([&] { return hasColours(bar, red(), navy()); }));
                       guiSetTextAtt(Progress, 0, "/#000080");
                       EXPECT_TRUE(pumpUntil([&] { return hasColours(bar, black(), navy()); }));
                   }});
}

// Letters of a font that is twice as high reach further down.
GUI_TEST(TextAttLook, OfALabelGrowsWithItsFont)
{
    runDialog({.build = [] { guiLabel(1, 0, 0, 120, "HHHH"); },
               .look =
                   [](Shown) {
                       guiSetTextAtt(1, 0, "#ff0000");
                       ASSERT_TRUE(screen::waitUntilPainted(innerOf(1)));
                       const auto inked = [] {
                           return screen::grab(innerOf(1)).count(shown(black()));
                       };
                       guiSetTextAtt(1, 0, kSmallest);
                       ASSERT_TRUE(pumpUntil([&] { return inked() > 10; }));
                       const int before = inked();
                       guiSetTextAtt(1, 0, kHuge);
                       EXPECT_TRUE(pumpUntil([&] { return inked() > 3 * before; }));
                       EXPECT_EQ(rectOf(innerOf(1)).height, heightOf(kHuge) / 8 * 8);
                   }});
}
