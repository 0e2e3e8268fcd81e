#include "frame/focus_leave.h"

#include <kitegui.h>

#include <utility>

#include "frame/dispatcher.h"

namespace kite::focusLeave {

namespace {

constexpr int kNone = -1;

struct {
    int id = kNone;  // set by note, cleared by all others
    Field field = Field::Text;
} pending;

}  // namespace

void note(int id, Field field)
{
    pending = {id, field};
}

void controlGainedFocus()
{
    if (pending.field == Field::Text)
        deliver();
    else
        forget();
}

void deliver()
{
    const int id = std::exchange(pending.id, kNone);
    if (id != kNone) raise(GUI_EVENT_LEFT, id, 1);
}

void forget()
{
    pending.id = kNone;
}

}  // namespace kite::focusLeave
