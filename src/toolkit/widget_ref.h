// widget_ref.h: a reference to a widget that knows when the widget is gone.
//
// A handler may destroy anything while a call of ours waits in a nested event loop. Xt destroys in two
// phases and may run the second one much later, so a reference is empty as soon as the destruction
// has begun, and never touches the widget after it has ended.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

class WidgetRef {
public:
    WidgetRef() = default;
    explicit WidgetRef(Widget widget) { reset(widget); }
    ~WidgetRef() { reset(); }

    WidgetRef(const WidgetRef&) = delete;
    WidgetRef& operator=(const WidgetRef&) = delete;

    void reset(Widget widget = nullptr);

    // Empties a reference that lives on, without a word to the toolkit: the display of the widget is about
    // to be closed, and the toolkit knows nothing of it any more.
    void abandon() { widget_ = nullptr; }

    // The widget, or null once its destruction has begun or its window was closed.
    Widget get() const;
    explicit operator bool() const { return get() != nullptr; }

private:
    static void destroyed(Widget widget, XtPointer self, XtPointer);

    Widget widget_ = nullptr;
};

}  // namespace kite
