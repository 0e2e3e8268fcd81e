// The marks of branches: the application's pictures, or those of the toolkit.

#include <Xm/Container.h>

#include "bmp_file.h"
#include "other_controls_support.h"

using namespace kite::testing;

namespace {

constexpr int kSide = 9;
constexpr BmpFile::Colour kRed{255, 0, 0};
constexpr BmpFile::Colour kGreen{0, 255, 0};

std::string square(BmpFile::Colour colour)
{
    return BmpFile::direct(BmpFile::Colours(kSide, std::vector(kSide, colour))).bytes();
}

int shown(const char* colour)
{
    return screen::grab(innerOf(1)).count(screen::colourNamed(colour));
}

void runTree(const std::function<void(Shown)>& use)
{
    runFilled([] { guiTree(1, 0, 8, 0, 100); },
              [] {
                  guiAddTree(1, 0, 1, "Top");
                  guiAddTree(1, 1, 2, "Below");
              },
              [&](Shown dialog) {
                  ASSERT_TRUE(waitForKeyboard(1));
                  use(dialog);
              });
}

}  // namespace

// The picture says what a click does: "open" stands at a branch that is collapsed.
GUI_STARTUP_TEST(TreePictures, OpenIsShownAtCollapsedBranchesAndCloseAtExpandedOnes)
{
    host.addFile("images/tree_open.bmp", square(kRed));
    host.addFile("images/tree_close.bmp", square(kGreen));
    app.run([] {
        runTree([](Shown dialog) {
            EXPECT_TRUE(pumpUntil([] { return shown("#ff0000") == kSide * kSide; }));
            EXPECT_EQ(shown("#00ff00"), 0);
            dialog.key(XK_Right, Control);
            EXPECT_TRUE(pumpUntil([] { return shown("#00ff00") == kSide * kSide; }));
            EXPECT_EQ(shown("#ff0000"), 0);
            dialog.key(XK_Left, Control);
            EXPECT_TRUE(pumpUntil([] { return shown("#ff0000") == kSide * kSide; }));
        });
    });
}

// The toolkit's are left, one by one.
GUI_STARTUP_TEST(TreePictures, ThatAreMissingAreTheToolkits)
{
    host.addFile("images/tree_close.bmp", square(kGreen));
    app.run([] {
        runTree([](Shown dialog) {
            ASSERT_TRUE(screen::waitUntilPainted(innerOf(1)));
            Widget const plain =
                XtVaCreateWidget("plain", xmContainerWidgetClass, newestBoard(), nullptr);
            const auto pixmap = [](Widget tree, const char* name) {
                return resource<Pixmap>(tree, name);
            };
            EXPECT_EQ(pixmap(innerOf(1), XmNcollapsedStatePixmap),
                      pixmap(plain, XmNcollapsedStatePixmap));
            EXPECT_NE(pixmap(innerOf(1), XmNexpandedStatePixmap),
                      pixmap(plain, XmNexpandedStatePixmap));
            dialog.key(XK_Right, Control);
            EXPECT_TRUE(pumpUntil([] { return shown("#00ff00") == kSide * kSide; }));
        });
    });
}
