#include <gtest/gtest.h>

#include "pointer_picture.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>

#include <chrono>
#include <memory>
#include <string_view>
#include <thread>

#include "connection.h"
#include "patience.h"
#include "robot.h"

namespace kite::testing {

namespace {

void selectXfixes()
{
    int major = 4;
    int minor = 0;
    XFixesQueryVersion(connection(), &major, &minor);
}

using CursorImage = std::unique_ptr<XFixesCursorImage, int (*)(void*)>;

CursorImage currentImage()
{
    static const bool isSelected = (selectXfixes(), true);
    static_cast<void>(isSelected);
    return {XFixesGetCursorImage(connection()), XFree};
}

bool isNamed(const CursorImage& image, std::string_view name)
{
    return image && image->name && image->name == name;
}

// The application does not run meanwhile.
template <typename Condition>
bool waitFor(const Condition& condition)
{
    const auto end = std::chrono::steady_clock::now() + patience();
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(milliseconds{1});
    }
    return true;
}

}  // namespace

PointerPicture pointerPicture()
{
    const CursorImage image = currentImage();
    if (!image) return {};
    const int count = image->width * image->height;
    return {image->width,
            image->height,
            image->xhot,
            image->yhot,
            {image->pixels, image->pixels + count}};
}

void pointTo(Point onScreen)
{
    Robot::instance().moveTo(onScreen);
    const bool isThere = waitFor([=] { return pointerPosition() == onScreen; });
    EXPECT_TRUE(isThere) << "The pointer has not come to " << onScreen;
}

PointerPicture pictureOfShape(unsigned shape)
{
    constexpr int kSide = 50;
    Display* const display = connection();
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    attributes.cursor = XCreateFontCursor(display, shape);
    Window const window =
        XCreateWindow(display, rootWindow(), 0, 0, kSide, kSide, 0, CopyFromParent, InputOutput,
                      CopyFromParent, CWOverrideRedirect | CWCursor, &attributes);
    XMapRaised(display, window);
    // A name of its own tells it from what a window manager shows while it grabs the pointer.
    constexpr char kName[] = "kitegui-test-reference";
    XFixesSetCursorName(display, attributes.cursor, kName);
    pointTo({kSide / 2, kSide / 2});
    EXPECT_TRUE(waitFor([&] { return isNamed(currentImage(), kName); })) << "No such cursor.";
    PointerPicture picture = pointerPicture();
    XDestroyWindow(display, window);
    XFreeCursor(display, attributes.cursor);
    XSync(display, False);
    return picture;
}

bool pointerBecomes(const PointerPicture& picture)
{
    return waitFor([&] { return pointerPicture() == picture; });
}

}  // namespace kite::testing
