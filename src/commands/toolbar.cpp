// toolbar.cpp: a row of image buttons, each of them a command.

#include <Xm/Form.h>
#include <Xm/PushB.h>
#include <Xm/ToggleB.h>
#include <kitegui.h>

#include <optional>
#include <string>
#include <utility>

#include "boxes/misuse.h"
#include "commands/command_checks.h"
#include "commands/command_events.h"
#include "commands/command_room.h"
#include "commands/toolbar_images.h"
#include "commands/toolbar_tips.h"
#include "frame/dispatcher.h"
#include "frame/main_frame.h"
#include "frame/settings.h"
#include "images/image_loader.h"
#include "toolkit/argument_list.h"
#include "toolkit/pixmaps.h"
#include "toolkit/resources.h"
#include "toolkit/x_error_trap.h"

namespace kite::commands {

namespace {

constexpr int kButtonWidth = 35;  // pixels, like all that follow
constexpr int kButtonHeight = 33;
constexpr int kAboveButton = 2;  // in the middle of the toolbar
constexpr int kMargin = 1;       // around the image
constexpr int kGap = 5;          // left of the first button, and for a separator
constexpr int kShadow = 2;

constexpr int kRaisedStyle = 1;  // of the setting "tbbstyle"; others are flat

struct Images {
    OwnedPixmap image;
    OwnedPixmap greyed;
};

// False after an error box.
bool isAcceptableButton(const char* image, int style, int id)
{
    const auto refuse = [](int) { return false; };
    if (!isConstructing()) return refuse(reportMisuse("ToolbarButton: cannot be used now"));
    if (isTooLong(image, kLongestImage) || !*image)
        return refuse(reportMisuse("ToolbarButton: invalid image name for id %d", id));
    if (!isAcceptable({"ToolbarButton", "button", room().buttons, room().items}, id, style))
        return false;
    if (room().buttons.isFull()) return refuse(reportMisuse("ToolbarButton: too many buttons"));
    return true;
}

enum class Loading { Done, NoImage, WrongSize };

// The server is asked once for both pixmaps: a host may be far from it, and a toolbar has many buttons.
Loading tryLoad(Screen* screen, const std::string& path, Pixel background,
                std::optional<Images>& loaded)
{
    const XErrorTrap trap{DisplayOfScreen(screen)};
    const images::Picture picture = images::load(screen, path, background, images::Check::Later);
    if (!picture) return Loading::NoImage;
    OwnedPixmap image{screen, picture.pixmap};
    OwnedPixmap grey = greyed(screen, image.get(), background);
    awaitPixmap(screen, image.get());
    if (trap.hasCaught()) return Loading::NoImage;
    if (picture.width != kImageSize || picture.height != kImageSize) return Loading::WrongSize;
    loaded.emplace(Images{std::move(image), std::move(grey)});
    return Loading::Done;
}

// None after an error box.
std::optional<Images> loadImages(Screen* screen, const std::string& path, Pixel background)
{
    std::optional<Images> loaded;
    const Loading result = tryLoad(screen, path, background, loaded);
    if (result == Loading::NoImage)
        reportMisuse("ToolbarButton: cannot load image %s", path.c_str());
    if (result == Loading::WrongSize)
        reportMisuse("ToolbarButton: image %s has wrong size", path.c_str());
    return loaded;
}

void place(ArgumentList& arguments)
{
    const Command* const previous = room().buttons.last();
    const bool hasGap = !previous || room().hasGapBeforeNext;
    arguments.set(XmNtopAttachment, XmATTACH_FORM);
    arguments.set(XmNtopOffset, kAboveButton);
    arguments.set(XmNleftAttachment, previous ? XmATTACH_WIDGET : XmATTACH_FORM);
    if (previous) arguments.set(XmNleftWidget, previous->widget.get());
    arguments.set(XmNleftOffset, hasGap ? kGap : 0);
}

// The keyboard stays where it is when the button is pressed: in the Output area, whose function keys are
// commands too.
void setLook(ArgumentList& arguments, const Images& images, bool isRaised)
{
    arguments.set(XmNlabelType, XmPIXMAP);
    arguments.set(XmNlabelPixmap, images.image.get());
    arguments.set(XmNlabelInsensitivePixmap, images.greyed.get());
    arguments.set(XmNrecomputeSize, False);
    arguments.set(XmNwidth, kButtonWidth);
    arguments.set(XmNheight, kButtonHeight);
    arguments.set(XmNmarginWidth, kMargin);
    arguments.set(XmNmarginHeight, kMargin);
    arguments.set(XmNhighlightThickness, 0);
    arguments.set(XmNtraversalOn, False);
    arguments.set(XmNshadowThickness, isRaised ? kShadow : 0);
}

// Without an indicator the set state shows as pressed in.
void setCheckLook(ArgumentList& arguments, const Images& images)
{
    arguments.set(XmNindicatorOn, XmINDICATOR_NONE);
    arguments.set(XmNselectPixmap, images.image.get());
    arguments.set(XmNselectInsensitivePixmap, images.greyed.get());
}

Widget createButton(Widget toolbar, Style style, bool isRaised, Images images)
{
    ArgumentList arguments;
    setLook(arguments, images, isRaised || style == kCheck);
    if (style == kCheck) setCheckLook(arguments, images);
    place(arguments);
    // Managed when the toolbar is shown.
    Widget const button = XtCreateWidget(
        "v_tbbtn", style == kCheck ? xmToggleButtonWidgetClass : xmPushButtonWidgetClass, toolbar,
        arguments.data(), arguments.size());
    if (!button) return nullptr;
    freeWithWidget(button, images.image.release());
    freeWithWidget(button, images.greyed.release());
    return button;
}

// The box that refuses a tip comes last: a handler that runs meanwhile may build as well.
int record(Widget button, const char* tip, Style style, int id)
{
    raiseFromButton(button, id, style);
    showTipOf(button);
    Command& command = room().buttons.add(id, style, button);
    room().hasGapBeforeNext = false;
    dispatcher::noteBuilding();
    const int count = room().buttons.count();
    if (tip && !isTooLong(tip, kLongestTip)) command.tip = tip;
    if (tip && isTooLong(tip, kLongestTip))
        reportMisuse("ToolbarButton: invalid tooltip for button %d", id);
    return count;
}

int addButton(const char* image, const char* tip, Style style, int id)
{
    const bool isRaised = settings::toolbarStyle() == kRaisedStyle;
    const std::string path = imagePath(image);
    Widget const toolbar = frame::widgets().toolbar;  // the host's services may have closed it
    if (!toolbar) return 0;
    auto images = loadImages(XtScreen(toolbar), path, resource<Pixel>(toolbar, XmNbackground));
    if (!images) return GUI_FAILED;
    Widget const button = createButton(toolbar, style, isRaised, std::move(*images));
    if (!button) return reportMisuse("ToolbarButton: cannot add button %d", id);
    return record(button, tip, style, id);
}

}  // namespace

}  // namespace kite::commands

using namespace kite;
using namespace kite::commands;

int guiToolbarButton(const char* image, const char* tooltip, int style, int id)
{
    if (!isAcceptableButton(image, style, id)) return GUI_FAILED;
    if (!frame::widgets().toolbar) return 0;
    return addButton(image, tooltip, static_cast<Style>(style), id);
}

int guiToolbarSeparator(void)
{
    if (!isConstructing()) return reportMisuse("ToolbarSeparator: cannot be used now");
    if (!room().buttons.last()) return 0;
    room().hasGapBeforeNext = true;
    return ++room().separators;
}
