// script.h: what happens while the test's own code waits, inside a modal box above all.
//
//     app.whenShown("v_askbox", [](Shown box) { box.click("Yes"); });
//     EXPECT_EQ(guiYesNoBox("Really?"), 1);
//
// Each action runs once, on the main thread, from a timer of the application, whichever loop runs it.
// Several for one name run for its appearances one after the other. A step that is not done at the end
// of the test fails it.

#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "pump.h"
#include "shown.h"

namespace kite::testing {

using Action = std::function<void()>;

// One thing to do, when its condition holds.
struct Step {
    std::string description;  // "v_askbox is shown"
    Condition condition;
    Action action;
};

// What a script does again and again until the end of this scope.
class [[nodiscard]] ScriptScope {
public:
    explicit ScriptScope(std::shared_ptr<void> sequence) : sequence_(std::move(sequence)) {}
    ~ScriptScope();
    ScriptScope(const ScriptScope&) = delete;
    ScriptScope& operator=(const ScriptScope&) = delete;

private:
    std::shared_ptr<void> sequence_;
};

class Script {
public:
    static Script& instance();

    // When a widget of the name is on the screen and painted, and was not handled before.
    void whenShown(const std::string& name, const std::function<void(Shown)>& action);

    // The same, every time within the scope; never is no failure.
    ScriptScope wheneverShown(const std::string& name, const std::function<void(Shown)>& action);

    void when(const std::string& description, Condition condition, Action action);

    // One after the other, each on a later turn of the loop than the one before.
    void inOrder(std::vector<Step> steps);
    Step shown(const std::string& name, const std::function<void(Shown)>& action);

    // Begins to look, in the application context that exists now.
    void arm();

    // Fails the test for everything that has not happened, and forgets it.
    void finish();
    void forget(const std::shared_ptr<void>& sequence);

private:
    struct Sequence {
        std::deque<Step> steps;
        bool isForever = false;
        bool isRunning = false;  // its action waits in a loop of its own
    };
    using SequencePointer = std::shared_ptr<Sequence>;

    Script() = default;
    static void look(XtPointer script, XtIntervalId*);
    void lookOnce();
    void runFirst(const SequencePointer& sequence);
    SequencePointer add(std::deque<Step> steps, bool isForever);
    Widget newlyShown(const std::string& name);
    void forgetHidden();

    std::vector<SequencePointer> waiting_;
    std::vector<Window> handled_;  // windows whose appearance an action was given
    int armedFor_ = -1;            // generation of the application that the timer belongs to
};

}  // namespace kite::testing
