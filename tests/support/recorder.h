// recorder.h: handlers for the library under test that write down what they are called with.
//
//     guiInit(recorder.hostCallback());
//     recorder.onEvent(GUI_EVENT_COMMAND, 7, [] { guiInfoBox("seven"); });
//     guiStart(recorder.windowHandler());
//     EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT),
//                                                toWindow(GUI_EVENT_COMMAND, 7, 1)));

#pragma once

#include <kitegui.h>

#include <functional>
#include <iosfwd>
#include <vector>

namespace kite::testing {

enum class Handler { Host, Window, Dialog, InnerDialog };

struct Event {
    Handler handler = Handler::Window;
    int event = 0;
    int id = 0;
    int a = 0;
    int b = 0;

    bool operator==(const Event&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Event& event);

// An event as its handler receives it.
Event toHost(int event, int id = 0, int a = 0, int b = 0);
Event toWindow(int event, int id = 0, int a = 0, int b = 0);
Event toDialog(int event, int id = 0, int a = 0, int b = 0);
Event toInnerDialog(int event, int id = 0, int a = 0, int b = 0);

class Recorder {
public:
    using Reaction = std::function<void(const Event&)>;

    static Recorder& instance();

    // One for each kind of window, so that a test sees which of them was chosen.
    static GuiHandler hostCallback();
    static GuiHandler windowHandler();
    static GuiHandler dialogHandler();
    static GuiHandler innerDialogHandler();

    const std::vector<Event>& events() const { return events_; }
    std::vector<Event> events(int event) const;  // those of one code
    int count(int event) const;
    int count(const Event& event) const;
    void clear() { events_.clear(); }

    // Runs inside the handler, each time an event comes, after it was recorded. The latest one counts.
    void onEvent(int event, int id, const Reaction& reaction);
    void onEvent(int event, int id, const std::function<void()>& reaction);
    void onEvent(int event, const Reaction& reaction);  // whatever its id
    void onEvent(int event, const std::function<void()>& reaction);
    void forgetReactions() { reactions_.clear(); }

    // What handlers return. The library has no use for it.
    void setResult(int result) { result_ = result; }

    int take(const Event& event);

private:
    struct Rule {
        int event;
        int id;
        bool anyId;
        Reaction reaction;
    };

    Recorder() = default;

    std::vector<Event> events_;
    std::vector<Rule> reactions_;
    int result_ = 0;
};

}  // namespace kite::testing
