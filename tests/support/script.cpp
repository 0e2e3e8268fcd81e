#include <gtest/gtest.h>

#include "script.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "connection.h"
#include "last_words.h"
#include "toolkit.h"
#include "widgets.h"
#include "window_manager.h"

namespace kite::testing {

namespace {

constexpr unsigned long kLookEvery = 5;  // milliseconds

// Exposed parts have been painted when no event waits any more.
bool isPainted(Widget widget)
{
    if (!isShown(widget) || !wm::isSettled(widget)) return false;
    XSync(XtDisplayOfObject(widget), False);
    return XPending(XtDisplayOfObject(widget)) == 0;
}

}  // namespace

Script& Script::instance()
{
    static Script script;
    return script;
}

Widget Script::newlyShown(const std::string& name)
{
    for (Widget const widget : findWidgets(name))
        if (isPainted(widget) && std::ranges::count(handled_, windowOf(widget)) == 0) return widget;
    return nullptr;
}

// The next appearance of the same window is a new one.
void Script::forgetHidden()
{
    std::erase_if(handled_, [](Window window) { return !isViewable(window); });
}

Step Script::shown(const std::string& name, const std::function<void(Shown)>& action)
{
    // What the condition has found: to look again may find that there is something to paint once more.
    const auto found = std::make_shared<Widget>(nullptr);
    return {name + " is shown",
            [this, name, found] { return (*found = newlyShown(name)) != nullptr; },
            [this, action, found] {
                handled_.push_back(windowOf(*found));
                action(Shown{*found});
            }};
}

Script::SequencePointer Script::add(std::deque<Step> steps, bool isForever)
{
    waiting_.push_back(std::make_shared<Sequence>(Sequence{std::move(steps), isForever}));
    arm();
    return waiting_.back();
}

void Script::whenShown(const std::string& name, const std::function<void(Shown)>& action)
{
    add({shown(name, action)}, false);
}

ScriptScope Script::wheneverShown(const std::string& name, const std::function<void(Shown)>& action)
{
    return ScriptScope{add({shown(name, action)}, true)};
}

void Script::when(const std::string& description, Condition condition, Action action)
{
    add({Step{description, std::move(condition), std::move(action)}}, false);
}

void Script::inOrder(std::vector<Step> steps)
{
    add({steps.begin(), steps.end()}, false);
}

void Script::arm()
{
    XtAppContext const context = toolkit::context();
    if (!context || armedFor_ == toolkit::generation()) return;
    armedFor_ = toolkit::generation();
    XtAppAddTimeOut(context, kLookEvery, look, this);
}

void Script::look(XtPointer self, XtIntervalId*)
{
    speakLastWordsIfAsked();
    auto& script = *static_cast<Script*>(self);
    // Before anything runs: an action may wait in a loop of its own, where others are due.
    XtAppContext const context = toolkit::context();
    if (!context) {
        script.armedFor_ = -1;
        return;
    }
    XtAppAddTimeOut(context, kLookEvery, look, self);
    script.lookOnce();
}

// At most one step for each turn of the loop.
void Script::lookOnce()
{
    forgetHidden();
    const std::vector<SequencePointer> candidates = waiting_;
    for (const SequencePointer& sequence : candidates) {
        if (sequence->isRunning || !sequence->steps.front().condition()) continue;
        runFirst(sequence);
        return;
    }
}

void Script::runFirst(const SequencePointer& sequence)
{
    const Step step = sequence->steps.front();
    if (!sequence->isForever) sequence->steps.pop_front();
    if (sequence->steps.empty()) std::erase(waiting_, sequence);
    sequence->isRunning = true;
    step.action();
    sequence->isRunning = false;
}

void Script::forget(const std::shared_ptr<void>& sequence)
{
    std::erase_if(waiting_, [&](const SequencePointer& waiting) { return waiting == sequence; });
}

ScriptScope::~ScriptScope()
{
    Script::instance().forget(sequence_);
}

void Script::finish()
{
    for (const SequencePointer& sequence : std::exchange(waiting_, {}))
        if (!sequence->isForever)
            ADD_FAILURE() << "This never happened: " << sequence->steps.front().description;
    handled_.clear();
}

}  // namespace kite::testing
