#include "recorded_events.h"

#include "pump.h"

namespace kite::testing {

std::vector<Event> eventsDuring(const std::function<void()>& action)
{
    settle();
    Recorder::instance().clear();
    action();
    settle();
    return Recorder::instance().events();
}

std::vector<Event> only(int event, std::vector<Event> events)
{
    std::erase_if(events, [&](const Event& e) { return e.event != event; });
    return events;
}

std::vector<Event> without(int event, std::vector<Event> events)
{
    std::erase_if(events, [&](const Event& e) { return e.event == event; });
    return events;
}

}  // namespace kite::testing
