// set_image.cpp: gives an image control or a push button its picture.

#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "controls/shown_picture.h"
#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"
#include "images/image_loader.h"
#include "toolkit/paint_now.h"
#include "toolkit/pixmaps.h"
#include "toolkit/resources.h"
#include "toolkit/screen_pen.h"
#include "toolkit/widget_ref.h"
#include "toolkit/x_error_trap.h"

namespace kite {

namespace {

// The part of the control inside its shadow, and what fills it.
struct Area {
    int width;
    int height;
    Pixel background;
};

Area usableAreaOf(Widget control)
{
    const int shadow = resource<Dimension>(control, XmNshadowThickness);
    return {resource<Dimension>(control, XmNwidth) - 2 * shadow,
            resource<Dimension>(control, XmNheight) - 2 * shadow,
            resource<Pixel>(control, XmNbackground)};
}

// In the top left corner, clipped. None when the server has no memory for it, or there is no area.
OwnedPixmap fitted(Screen* screen, const images::Picture& picture, const Area& area)
{
    OwnedPixmap fitted{screen, None};
    if (area.width < 1 || area.height < 1) return fitted;
    Display* const display = DisplayOfScreen(screen);
    const XErrorTrap trap{display};
    const auto width = static_cast<unsigned>(area.width);
    const auto height = static_cast<unsigned>(area.height);
    OwnedPixmap made{screen, XCreatePixmap(display, RootWindowOfScreen(screen), width, height,
                                           static_cast<unsigned>(DefaultDepthOfScreen(screen)))};
    GC const pen = screenPen(screen, area.background);
    XFillRectangle(display, made.get(), pen, 0, 0, width, height);
    XCopyArea(display, picture.pixmap, made.get(), pen, 0, 0,
              static_cast<unsigned>(std::min(picture.width, area.width)),
              static_cast<unsigned>(std::min(picture.height, area.height)), 0, 0);
    awaitPixmap(screen, made.get());
    return trap.hasCaught() ? std::move(fitted) : std::move(made);
}

bool isGiven(const char* fileName)
{
    return fileName && *fileName;
}

// None after an error box.
images::Picture load(Screen* screen, const char* fileName, Pixel background)
{
    const images::Picture picture = images::load(screen, fileName, background);
    if (!picture) reportMisuse("guisetimage: cannot load image %s", fileName);
    return picture;
}

// A control without a picture is cleared, also when the new one cannot be loaded.
int setImage(const Control& control, const char* fileName)
{
    const EventsSuppressed quiet;
    const WidgetRef shown{control.widget};
    Screen* const screen = XtScreen(control.widget);
    const Area area = usableAreaOf(control.widget);
    images::Picture picture;
    if (isGiven(fileName)) picture = load(screen, fileName, area.background);
    OwnedPixmap pixmap{screen, picture ? picture.pixmap : None};
    if (picture && control.type == ControlType::Image) pixmap = fitted(screen, picture, area);
    if (!shown) return GUI_FAILED;  // the box has waited meanwhile
    const bool hasPicture = pixmap.get() != None;
    showPicture(control.widget, hasPicture ? pixmap.release() : XmUNSPECIFIED_PIXMAP);
    paintNow(control.widget);
    return hasPicture || !isGiven(fileName) ? 0 : GUI_FAILED;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiSetImage(int id, const char* fileName)
{
    const Control control = findControl("SetImage", id, {ControlType::Button, ControlType::Image});
    return control ? setImage(control, fileName) : GUI_FAILED;
}
