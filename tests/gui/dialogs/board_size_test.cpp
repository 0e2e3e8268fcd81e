// The size of a dialog: its controls and a margin of 7 units.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

struct Size {
    int width, height;
    bool operator==(const Size&) const = default;
};

std::ostream& operator<<(std::ostream& out, Size size)
{
    return out << size.width << 'x' << size.height;
}

Size sizeOf(Widget widget)
{
    return {resource<Dimension>(widget, XmNwidth), resource<Dimension>(widget, XmNheight)};
}

constexpr int kSmallestWindow =
    100;  // window managers make decorated windows no narrower than their title

// Before the dialog is shown and on the screen.
void expectSize(const std::function<void()>& build, const std::function<Size()>& expected)
{
    ASSERT_EQ(guiDialog("Size"), 0);
    build();
    const Size size = expected();
    Size first{};
    Recorder::instance().onEvent(GUI_EVENT_INIT, [&] { first = sizeOf(board()); });
    EXPECT_EQ(runWhileShown([&](Shown dialog) {
                  if (size.width < kSmallestWindow) return;
                  const Rect rect = rectOf(dialog.widget());
                  EXPECT_EQ((Size{rect.width, rect.height}), size);
                  EXPECT_EQ(sizeOf(dialog.shell()), size);
              }),
              1);
    EXPECT_EQ(first, size);
}

void expectSizes(const Units& units)
{
    const int right = static_cast<int>(7 * units.across);
    const int below = static_cast<int>(7 * units.down);

    // The widest control and the lowest one decide, also when they are different ones.
    expectSize(
        [] {
            guiLabel(1, 0, 3, 150, "Wide");
            guiLabel(2, 6, 0, 60, "Low");
            guiLabel(3, 2, 10, 5, "");
        },
        [&] {
            return Size{static_cast<int>(10 * units.across) + static_cast<int>(150 * units.across) +
                            right,
                        static_cast<int>((6 * 14 + 2 + 7) * units.down) +
                            static_cast<int>(8 * units.down) + below};
        });

    // As large as the widget, which may be larger than its place.
    expectSize([] { guiButton(1, 8, 90, 61, "Button", 1); },
               [&] {
                   return Size{static_cast<int>(97 * units.across) - 1 +
                                   static_cast<int>(61 * units.across) + 2 + right,
                               static_cast<int>((8 * 14 + 7) * units.down) - 1 +
                                   static_cast<int>(12 * units.down) + 2 + below};
               });
}

}  // namespace

GUI_TEST(BoardSize, HasTheMarginBehindTheOutermostControls)
{
    expectSizes(unitsOf(kUsualFont));
}

GUI_STARTUP_TEST(BoardSize, GrowsWithTheFont)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] { expectSizes(unitsOf(kLargeFont)); });
}

GUI_TEST(BoardSize, IsAtLeastTheMargin)
{
    // Is the margin for a dialog without controls.
    {
        const Units units = unitsOf(kUsualFont);
        expectSize(
            [] {},
            [&] {
                return Size{static_cast<int>(7 * units.across), static_cast<int>(7 * units.down)};
            });
    }

    // What stands above or left of the corner takes no room.
    {
        const Units units = unitsOf(kUsualFont);
        expectSize(
            [] { guiLabel(1, -10, -300, 20, "Outside"); },
            [&] {
                return Size{static_cast<int>(7 * units.across), static_cast<int>(7 * units.down)};
            });
    }

    // Counts hidden buttons.
    {
        const Units units = unitsOf(kUsualFont);
        expectSize([] { guiButton(1, 10, 90, 0, "", 1); },
                   [&] {
                       return Size{static_cast<int>(97 * units.across) - 1 + 2 +
                                       static_cast<int>(7 * units.across),
                                   static_cast<int>((10 * 14 + 7) * units.down) - 1 +
                                       static_cast<int>(12 * units.down) + 2 +
                                       static_cast<int>(7 * units.down)};
                   });
    }
}
