// frame_pictures_test.cpp: the icon and the tree images that the frame loads.

#include <X11/Xutil.h>
#include <Xm/Xm.h>

#include "frame/frame_pictures.h"
#include "frame/main_frame.h"
#include "gui_test.h"
#include "images/transparent_grey.h"
#include "loaded.h"
#include "server_resources.h"

using namespace kite;
using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// What the window manager is told.
std::optional<Pixmap> iconHint(Widget shell)
{
    XWMHints* const hints = XGetWMHints(XtDisplay(shell), XtWindow(shell));
    std::optional<Pixmap> icon;
    if (hints && hints->flags & IconPixmapHint) icon = hints->icon_pixmap;
    XFree(hints);
    return icon;
}

frame::TreeImages treeImages()
{
    return frame::treeImages(toolkit::display());
}

// One drawn pixel, and one that shows the undrawn pixel.
std::string halfDrawn(BmpFile::Colour colour)
{
    return BmpFile::inRuns(8, {colour}, 2, 1, std::string("\1\0\0\1", 4)).bytes();
}

}  // namespace

GUI_STARTUP_TEST(FramePictures, IconComesFromTheApplicationDirectory)
{
    host.addFile("images/icon.bmp", halfDrawn(kRed));
    app.run([&] {
        const auto icon = resource<Pixmap>(app.shell(), XmNiconPixmap);
        EXPECT_EQ(pixelsOf(icon), (Pixels{{serverPixel(kRed), 0}}));
        EXPECT_EQ(iconHint(app.shell()), icon);
    });
}

// Large enough to be seen, in the icon box of the window manager.
GUI_STARTUP_TEST(FramePictures, IconIsShownByTheWindowManager)
{
    host.addFile("images/icon.bmp",
                 BmpFile::direct(BmpFile::Colours(48, std::vector(48, kRed))).bytes());
    app.run([&] {
        const screen::Colour red = screen::colourNamed("#ff0000");
        EXPECT_EQ(screen::grab().count(red), 0);
        wm::iconify(app.shell());
        EXPECT_TRUE(pumpUntil([&] { return screen::grab().count(red) == 48 * 48; }))
            << screen::grab().count(red);
        wm::deiconify(app.shell());
    });
}

GUI_STARTUP_TEST(FramePictures, TreeImagesComeFromTheApplicationDirectory)
{
    host.addFile("images/tree_open.bmp", halfDrawn(kGreen));
    host.addFile("images/tree_close.bmp", halfDrawn(kBlue));
    EXPECT_FALSE(frame::treeImages(nullptr).opened);
    app.run([&] {
        ASSERT_TRUE(treeImages().opened);
        EXPECT_EQ(treeImages().opened.width, 2);
        EXPECT_EQ(treeImages().opened.height, 1);
        EXPECT_EQ(pixelsOf(treeImages().opened.pixmap), (Pixels{{serverPixel(kGreen), 1}}));
        EXPECT_EQ(pixelsOf(treeImages().closed.pixmap), (Pixels{{serverPixel(kBlue), 1}}));
        Display* const other = XOpenDisplay(nullptr);
        EXPECT_FALSE(frame::treeImages(other).opened);
        EXPECT_FALSE(frame::treeImages(other).closed);
        XCloseDisplay(other);
    });
    EXPECT_FALSE(frame::treeImages(nullptr).opened);
}

GUI_STARTUP_TEST(FramePictures, AreAbsentOneByOne)
{
    host.addFile("images/tree_open.bmp", "BM is no picture");
    host.addFile("images/tree_close.bmp", halfDrawn(kBlue));
    app.run([&] {
        EXPECT_FALSE(treeImages().opened);
        EXPECT_TRUE(treeImages().closed);
    });
}

GUI_STARTUP_TEST(FramePictures, AreLoadedBesideTheSettings)
{
    // Each of these files appears only when a setting is read: the icon's too late, the trees' in time.
    host.profile().onRead([&](const std::string& key) {
        if (key == "mwndx") host.addFile("images/icon.bmp", halfDrawn(kRed));
        if (key == "mouse_hover") host.addFile("images/tree_open.bmp", halfDrawn(kGreen));
    });
    app.run([&] {
        EXPECT_EQ(depthOf(resource<Pixmap>(app.shell(), XmNiconPixmap)), 1U);
        EXPECT_TRUE(treeImages().opened);
    });
}

// A host with a loop of its own can have frame after frame on one display.
GUI_STARTUP_TEST(FramePictures, GoWithTheirFrame)
{
    host.addFile("images/icon.bmp", halfDrawn(kRed));
    host.addFile("images/tree_open.bmp", halfDrawn(kGreen));
    app.init();
    Display* const display = toolkit::display();
    const unsigned before = serverResources(display).at("PIXMAP");
    for (int round = 0; round < 3; ++round) {
        guiClose(0);
        EXPECT_FALSE(frame::treeImages(display).opened);
        guiInit(recorder.hostCallback());
        ASSERT_TRUE(pumpUntil([&] { return isShown(app.shell()); }));
        ASSERT_EQ(toolkit::display(), display);
        EXPECT_TRUE(treeImages().opened);
        EXPECT_LE(serverResources(display).at("PIXMAP"), before) << round;
    }
}

GUI_STARTUP_TEST(FramePictures, LetTheMenuBarShowThroughTheirGrey)
{
    EXPECT_EQ(images::transparentGrey(), std::nullopt);
    app.run([&] {
        Widget const menuBar = findWidget("v_menubar");
        EXPECT_EQ(images::transparentGrey(), resource<Pixel>(menuBar, XmNbackground));
        XtVaSetValues(menuBar, XmNbackground, Pixel{0x123456}, nullptr);
        EXPECT_EQ(images::transparentGrey(), 0x123456U);
        XtDestroyWidget(menuBar);
        settle();
        EXPECT_EQ(images::transparentGrey(), std::nullopt);
    });
    EXPECT_EQ(images::transparentGrey(), std::nullopt);
}
