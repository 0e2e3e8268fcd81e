// clipboard.h: texts on the X clipboard, through the toolkit's clipboard calls.
//
// All clients share the clipboard under a lock. While another client has it we try again, without an end: that
// is how the calls are meant.

#pragma once

#include <X11/Intrinsic.h>

#include <initializer_list>
#include <optional>
#include <string_view>

#include "toolkit/nested_loop.h"
#include "toolkit/text_copy.h"

namespace kite {

inline constexpr char kPlainText[] = "STRING";
inline constexpr char kCompoundText[] = "COMPOUND_TEXT";

// The clipboard from the constructor to the destructor, for a widget whose window stands for us.
class Clipboard {
public:
    explicit Clipboard(Widget widget);
    ~Clipboard();
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    // False for a widget without a window, and inside another clipboard's scope: waiting for another client's
    // text processes events, and a handler that asks for the clipboard then would wait for itself.
    explicit operator bool() const { return display_ != nullptr; }

    // Replaces what is there. In vain when there is no memory.
    void put(std::string_view text);

    // In the first of the formats that has any; without bytes when none has. May process events.
    TextCopy text(std::initializer_list<const char*> formats);

private:
    TextCopy textIn(const char* format);

    // Waiting for another client is an event loop like any other; it is the toolkit's.
    std::optional<ProcessingEvents> reading_;
    Display* display_ = nullptr;
    Window window_ = 0;
};

}  // namespace kite
