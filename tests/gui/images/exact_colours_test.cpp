// exact_colours_test.cpp: displays that report every colour exactly as it was asked for. There the grey of
// pictures is transparent. No server of the tests is one, so this program answers in its place.

#include <Xm/Xm.h>
#include <dlfcn.h>

#include "frame/frame_pictures.h"
#include "gui_test.h"
#include "images/display_colours.h"
#include "loaded.h"
#include "round_trips.h"

using namespace kite::testing;

extern "C" Status XAllocColor(Display* display, Colormap colormap, XColor* colour)
{
    using Function = Status (*)(Display*, Colormap, XColor*);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "XAllocColor"));
    const XColor wanted = *colour;
    const Status status = original(display, colormap, colour);
    colour->red = wanted.red;
    colour->green = wanted.green;
    colour->blue = wanted.blue;
    return status;
}

GUI_TEST(ExactColours, LetTheMenuBarShowThroughTheGrey)
{
    Widget const menuBar = findWidget("v_menubar");
    XtVaSetValues(menuBar, XmNbackground, serverPixel(kBlue), nullptr);
    const BmpFile::Colour almost{191, 191, 190};
    EXPECT_EQ(
        pixelsLoaded(BmpFile::direct({{kRed, kGrey, almost, kGrey}}).bytes()),
        (Pixels{{serverPixel(kRed), serverPixel(kBlue), serverPixel(almost), serverPixel(kBlue)}}));
    // With a palette it is a colour like others.
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(8, {kGrey}, {{0}}).bytes()),
              (Pixels{{serverPixel(kGrey)}}));
    // And so it is without a menu bar.
    XtDestroyWidget(menuBar);
    settle();
    EXPECT_EQ(pixelsLoaded(BmpFile::direct({{kGrey}}).bytes()), (Pixels{{serverPixel(kGrey)}}));
}

// A server that does not compute colours as expected is asked: for each of a picture once.
GUI_TEST(ExactColours, AreAskedForAndNotComputed)
{
    Display* const display = toolkit::display();
    EXPECT_EQ(kite::images::computedColours(display, DefaultColormapOfScreen(defaultScreen())),
              nullptr);
    const std::string three = BmpFile::direct({{kRed, kBlue, kRed}, {kGrey, kBlue, kGrey}}).bytes();
    EXPECT_EQ(roundTripsDuring(display, [&] { XFreePixmap(display, loadBytes(three).pixmap); }),
              3 + 1);  // and the pixmap
}

// It is loaded before there is a menu bar; the tree images are loaded after.
GUI_STARTUP_TEST(ExactColours, OfTheIconAreNotTransparent)
{
    host.addFile("images/icon.bmp", BmpFile::direct({{kGrey}}).bytes());
    host.addFile("images/tree_open.bmp", BmpFile::direct({{kGrey}}).bytes());
    app.run([&] {
        const auto opened = kite::frame::treeImages(toolkit::display()).opened;
        ASSERT_TRUE(opened);
        EXPECT_EQ(pixelsOf(opened.pixmap),
                  (Pixels{{resource<Pixel>(findWidget("v_menubar"), XmNbackground)}}));
        EXPECT_EQ(pixelsOf(resource<Pixmap>(app.shell(), XmNiconPixmap)),
                  (Pixels{{serverPixel(kGrey)}}));
    });
}
