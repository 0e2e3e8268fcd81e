#include "recorder.h"

#include <algorithm>
#include <ostream>
#include <ranges>

namespace kite::testing {

namespace {

template <Handler handler>
int record(int event, int id, int a, int b)
{
    return Recorder::instance().take({handler, event, id, a, b});
}

const char* nameOf(Handler handler)
{
    switch (handler) {
    case Handler::Host: return "toHost";
    case Handler::Window: return "toWindow";
    case Handler::Dialog: return "toDialog";
    case Handler::InnerDialog: return "toInnerDialog";
    }
    return "?";
}

const char* nameOf(int event)
{
    switch (event) {
    case GUI_EVENT_INIT: return "INIT";
    case GUI_EVENT_DROP: return "DROP";
    case GUI_EVENT_COMMAND: return "COMMAND";
    case GUI_EVENT_TEXT_CHANGED: return "TEXT_CHANGED";
    case GUI_EVENT_CHECK: return "CHECK";
    case GUI_EVENT_RADIO: return "RADIO";
    case GUI_EVENT_VALUE: return "VALUE";
    case GUI_EVENT_SELECT: return "SELECT";
    case GUI_EVENT_CURSOR: return "CURSOR";
    case GUI_EVENT_KEY: return "KEY";
    case GUI_EVENT_LEFT: return "LEFT";
    case GUI_EVENT_TIMER: return "TIMER";
    case GUI_EVENT_HELP: return "HELP";
    case GUI_EVENT_CONTEXT: return "CONTEXT";
    case GUI_EVENT_HOVER: return "HOVER";
    case GUI_EVENT_SCROLLED: return "SCROLLED";
    default: return "?";
    }
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Event& event)
{
    return out << nameOf(event.handler) << '(' << nameOf(event.event) << '=' << event.event << ", "
               << event.id << ", " << event.a << ", " << event.b << ')';
}

Event toHost(int event, int id, int a, int b)
{
    return {Handler::Host, event, id, a, b};
}

Event toWindow(int event, int id, int a, int b)
{
    return {Handler::Window, event, id, a, b};
}

Event toDialog(int event, int id, int a, int b)
{
    return {Handler::Dialog, event, id, a, b};
}

Event toInnerDialog(int event, int id, int a, int b)
{
    return {Handler::InnerDialog, event, id, a, b};
}

Recorder& Recorder::instance()
{
    static Recorder recorder;
    return recorder;
}

GuiHandler Recorder::hostCallback()
{
    return record<Handler::Host>;
}

GuiHandler Recorder::windowHandler()
{
    return record<Handler::Window>;
}

GuiHandler Recorder::dialogHandler()
{
    return record<Handler::Dialog>;
}

GuiHandler Recorder::innerDialogHandler()
{
    return record<Handler::InnerDialog>;
}

std::vector<Event> Recorder::events(int event) const
{
    std::vector<Event> some;
    std::ranges::copy_if(events_, std::back_inserter(some),
                         [=](const Event& taken) { return taken.event == event; });
    return some;
}

int Recorder::count(int event) const
{
    return static_cast<int>(std::ranges::count(events_, event, &Event::event));
}

int Recorder::count(const Event& event) const
{
    return static_cast<int>(std::ranges::count(events_, event));
}

void Recorder::onEvent(int event, int id, const Reaction& reaction)
{
    reactions_.push_back({event, id, false, reaction});
}

void Recorder::onEvent(int event, int id, const std::function<void()>& reaction)
{
    onEvent(event, id, Reaction{[reaction](const Event&) { reaction(); }});
}

void Recorder::onEvent(int event, const Reaction& reaction)
{
    reactions_.push_back({event, 0, true, reaction});
}

void Recorder::onEvent(int event, const std::function<void()>& reaction)
{
    onEvent(event, Reaction{[reaction](const Event&) { reaction(); }});
}

int Recorder::take(const Event& event)
{
    events_.push_back(event);
    for (const Rule& rule : std::views::reverse(reactions_)) {
        if (rule.event != event.event || (!rule.anyId && rule.id != event.id)) continue;
        // A copy: the reaction may add others, and may be entered again.
        const Reaction reaction = rule.reaction;
        reaction(event);
        break;
    }
    return result_;
}

}  // namespace kite::testing
