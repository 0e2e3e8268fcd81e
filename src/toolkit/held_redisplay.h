// held_redisplay.h: many changes of a text in a row are painted together.
//
// To paint a text costs ten times what it costs to change it. So a change that comes soon after the last
// painting waits: for the next change when kPaintInterval is over, for the end of the handler, for the
// next turn of an event loop, or for the user. Only painting waits: what the text answers is current.
// (Its scroll bars are painting: their values follow with it.)

#pragma once

#include <X11/Intrinsic.h>

#include <chrono>

namespace kite {

inline constexpr std::chrono::milliseconds kPaintInterval{16};  // what the eye takes for at once

// Around the changes of an XmText. At its end they are painted, or wait for at most that interval.
class HeldRedisplay {
public:
    explicit HeldRedisplay(Widget text);
    ~HeldRedisplay();

    HeldRedisplay(const HeldRedisplay&) = delete;
    HeldRedisplay& operator=(const HeldRedisplay&) = delete;
};

// Paints what waits, if anything does, and sends it to the server. Before everything that shows the user
// something, or waits for him.
void paintHeldText();

// The same, when the interval is over.
void paintOverdueText();

}  // namespace kite
