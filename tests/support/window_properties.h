// window_properties.h: what a client tells the window manager about its window.

#pragma once

#include <X11/Xutil.h>

#include <optional>
#include <string>
#include <vector>

#include "window_manager.h"

namespace kite::testing::wm {

std::string nameOf(Client client);      // WM_NAME
std::string netNameOf(Client client);   // _NET_WM_NAME, UTF-8
std::string iconNameOf(Client client);  // WM_ICON_NAME
XSizeHints normalHintsOf(Client client);
std::vector<std::string> protocolsOf(Client client);
std::optional<Window> transientFor(Client client);

// A property of 32-bit items; empty when there is none.
std::vector<unsigned long> itemsOf(Window window, const std::string& property);

// A property of bytes; no value when there is none.
std::optional<std::string> bytesOf(Window window, const std::string& property);

}  // namespace kite::testing::wm
