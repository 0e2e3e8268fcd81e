// Any operations in any order leave the controls as a plain model of them.
//
// The seed of a failure is given again with --seed=, or KITE_TEST_SEED. What failed is made as short as it
// goes, and printed as code.

#include <chrono>
#include <iostream>
#include <optional>

#include "../../support/environment.h"
#include "items_support.h"
#include "model.h"

using namespace kite::testing;

namespace {

using Steps = std::vector<ItemStep>;
using std::chrono::steady_clock;

struct Difference {
    std::size_t step = 0;
    std::string what;
};

enum class Moment { OnTheScreen, InAHandler };

constexpr int kButton = 90;

std::optional<Difference> firstDifference(const Steps& steps)
{
    Model model;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const ItemStep& step = steps[i];
        const std::string answer = perform(step);
        const std::string expected = model.answer(step);
        if (answer != expected)
            return Difference{i, "answers " + inQuotes(answer) + " and not " + inQuotes(expected)};
        const std::string state = stateOfControl(step.id);
        model.takeOver(step, state);
        const std::string expectedState = model.state(step.id);
        if (state != expectedState)
            return Difference{i, "\n    leaves " + state + "\n       not " + expectedState};
    }
    return std::nullopt;
}

// In a dialog of its own.
std::optional<Difference> run(const Steps& steps, Moment moment)
{
    std::optional<Difference> found;
    auto& recorder = Recorder::instance();
    recorder.onEvent(GUI_EVENT_COMMAND, kButton, [&] { found = firstDifference(steps); });
    runDialog({.build =
                   [] {
                       buildItemControls();
                       guiButton(kButton, 15, 0, 40, "Run", 0);
                   },
               .look =
                   [&](Shown dialog) {
                       if (moment == Moment::InAHandler)
                           dialog.click("Run");
                       else
                           found = firstDifference(steps);
                   }});
    return found;
}

Steps without(const Steps& steps, std::size_t first, std::size_t count)
{
    Steps rest{steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(first)};
    const std::size_t behind = std::min(first + count, steps.size());
    rest.insert(rest.end(), steps.begin() + static_cast<std::ptrdiff_t>(behind), steps.end());
    return rest;
}

// Leaves out what is not needed for a difference, for as long as there is time.
Steps shortened(Steps steps, Moment moment)
{
    const auto end = steady_clock::now() + seconds{12};
    const auto fails = [&](const Steps& some) { return run(some, moment).has_value(); };
    const int id = steps.back().id;
    Steps ofControl;
    for (const ItemStep& step : steps)
        if (step.id == id) ofControl.push_back(step);
    if (fails(ofControl)) steps = ofControl;
    for (std::size_t chunk = steps.size() / 2; chunk > 0; chunk /= 2)
        for (std::size_t first = 0; first < steps.size();) {
            if (steady_clock::now() > end) return steps;
            const Steps fewer = without(steps, first, chunk);
            if (fails(fewer))
                steps = fewer;
            else
                first += chunk;
        }
    return steps;
}

std::string report(const Steps& steps, const std::string& difference)
{
    std::string code;
    for (const ItemStep& step : steps) code += "    " + asCode(step) + '\n';
    return code + "the last one " + difference;
}

Steps randomSteps(unsigned seed, int count)
{
    std::mt19937 random{seed};
    Steps steps;
    for (int i = 0; i < count; ++i) steps.push_back(randomStep(random));
    return steps;
}

void expectLikeModel(unsigned seed, int count, Moment moment)
{
    std::cout << "seed " << seed << '\n';
    Steps steps = randomSteps(seed, count);
    const auto difference = run(steps, moment);
    if (!difference) return;
    steps.resize(difference->step + 1);
    const Steps few = shortened(steps, moment);
    const auto last = run(few, moment);
    ADD_FAILURE() << "--seed=" << seed << ", step " << difference->step << '\n'
                  << report(few,
                            last ? last->what : "does it no more; it was: " + difference->what);
}

unsigned chosenSeed(unsigned usual)
{
    return static_cast<unsigned>(std::stoul(environment("KITE_TEST_SEED", std::to_string(usual))));
}

}  // namespace

GUI_TEST(ItemModel, HoldsForTenThousandOperations)
{
    expectLikeModel(chosenSeed(20261), 10000, Moment::OnTheScreen);
}

GUI_TEST(ItemModel, HoldsForOtherSeeds)
{
    for (unsigned seed = 1; seed <= 4; ++seed)
        expectLikeModel(chosenSeed(seed), 500, Moment::OnTheScreen);
}

// What is removed is not destroyed before the handler returns.
GUI_TEST(ItemModel, HoldsWithinOneHandler)
{
    for (unsigned seed = 11; seed <= 13; ++seed)
        expectLikeModel(chosenSeed(seed), 1000, Moment::InAHandler);
}
