// monkey.h: random input, real keys and mouse, for the windows of one program.

#pragma once

#include <deque>
#include <random>
#include <string>

#include "robot.h"
#include "tour_under_test.h"

namespace kite::testing {

class Monkey {
public:
    Monkey(TourUnderTest& tour, unsigned seed) : tour_(tour), random_(seed) {}

    // One event, or a few that belong together. Starts the tour again when it has been left.
    void act();

    // What it did last, for whoever wants to do the same.
    std::string latest() const;

private:
    int upTo(int most) { return std::uniform_int_distribution{0, most}(random_); }
    Point somewhere();
    bool aim();

    void pressKey();
    void typeWord();
    void click();
    void drag();
    void turnWheel();
    void closeWindow();

    void note(const std::string& what);

    TourUnderTest& tour_;
    std::mt19937 random_;
    std::deque<std::string> notes_;
};

}  // namespace kite::testing
