// events_support.h: what the tests of events share: raising an event, plug-ins, windows of the host's.

#pragma once

#include <functional>

#include "gui_test.h"

namespace kite::testing {

// Through the library's dispatcher, as a plug-in gets it.
void raiseEvent(int event, int id = 0, int a = 0, int b = 0);

// A plug-in is a plain function. These run any body, a different one for each slot.
using PluginBody = std::function<int(GuiHandler dispatch)>;

template <int slot>
inline PluginBody pluginBody;

template <int slot = 0>
GuiPlugin plugin(PluginBody body)
{
    pluginBody<slot> = std::move(body);
    return [](GuiHandler dispatch) { return pluginBody<slot>(dispatch); };
}

// A window of the host's own in a shell below the top window, as a dialog is, with its handler (or
// null). It is not shown yet.
Widget makeWindow(GuiHandler handler);

// Runs an action whenever the widget calls that callback.
void onCallback(Widget widget, const char* name, const std::function<void()>& action);

}  // namespace kite::testing
