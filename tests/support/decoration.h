// decoration.h: where the window manager has put the handles of a window, in pixels of the screen.

#pragma once

#include <optional>

#include "window_manager.h"

namespace kite::testing::wm {

// No value when this window manager gave the window no such handle.
std::optional<Point> titleBar(Client client);
std::optional<Point> menuButton(Client client);
std::optional<Point> closeButton(Client client);
std::optional<Point> iconifyButton(Client client);

}  // namespace kite::testing::wm
