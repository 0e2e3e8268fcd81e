// frame_pictures.h: the pictures of the application directory that every frame has: its icon, and the branch
// marks of trees.

#pragma once

#include <X11/Intrinsic.h>

#include "images/image_loader.h"

namespace kite::frame {

// "images/icon.bmp", or the built-in one, of one bit, when that cannot be loaded. The caller's, to free.
Pixmap loadIcon(Screen* screen);

struct TreeImages {
    images::Picture opened;  // "images/tree_open.bmp"
    images::Picture closed;  // "images/tree_close.bmp"
};

// Loads both. They are the shell's, and go with it.
void loadTreeImages(Widget shell);

// For widgets of this display. Pictures that could not be loaded are absent; without a frame both are.
TreeImages treeImages(Display* display);

}  // namespace kite::frame
