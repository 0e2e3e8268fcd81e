#include "frame/frame_pictures.h"

#include <X11/StringDefs.h>

#include <string>

#include "frame/built_in_icon.h"
#include "frame/host_services.h"
#include "toolkit/host_buffer.h"
#include "toolkit/pixmaps.h"

namespace kite::frame {

namespace {

// What shows where a picture draws nothing.
constexpr Pixel kUndrawnOfIcon = 0;
constexpr Pixel kUndrawnOfTreeImage = 1;

struct State {
    Widget shell = nullptr;  // of the frame built last, until it is destroyed
    TreeImages treeImages;   // its own
};
State state;

images::Picture loadFile(Screen* screen, const char* name, Pixel undrawn)
{
    return images::load(screen, std::string{orEmpty(kxAppDir())} + "images/" + name, undrawn);
}

images::Picture loadForShell(Widget shell, const char* name)
{
    const images::Picture picture = loadFile(XtScreenOfObject(shell), name, kUndrawnOfTreeImage);
    if (picture) freeWithWidget(shell, picture.pixmap);
    return picture;
}

// Xt may come to it late, when the host has built the next frame.
void shellDestroyed(Widget shell, XtPointer, XtPointer)
{
    if (state.shell == shell) state = {};
}

}  // namespace

Pixmap loadIcon(Screen* screen)
{
    if (const images::Picture icon = loadFile(screen, "icon.bmp", kUndrawnOfIcon))
        return icon.pixmap;
    return XCreateBitmapFromData(DisplayOfScreen(screen), RootWindowOfScreen(screen),
                                 reinterpret_cast<const char*>(kBuiltInIcon), kBuiltInIconSize,
                                 kBuiltInIconSize);
}

void loadTreeImages(Widget shell)
{
    XtAddCallback(shell, XtNdestroyCallback, shellDestroyed, nullptr);
    state.treeImages.opened = loadForShell(shell, "tree_open.bmp");
    state.treeImages.closed = loadForShell(shell, "tree_close.bmp");
    state.shell = shell;
}

TreeImages treeImages(Display* display)
{
    const bool isOurs = state.shell && XtDisplay(state.shell) == display;
    return isOurs ? state.treeImages : TreeImages{};
}

}  // namespace kite::frame
