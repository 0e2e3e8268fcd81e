// monkey_test.cpp: somebody who does not know what a user does plays with the tour.
//
// --events=20000 (or KITE_TEST_EVENTS) takes longer, and --seed= (or KITE_TEST_SEED) is somebody else; what they
// did last is the seed and the number that a failure names.

#include "environment.h"
#include "gui_test.h"
#include "monkey.h"

using namespace kite::testing;

GUI_STARTUP_TEST(Monkey, DoesNoHarm)
{
    const auto seed = static_cast<unsigned>(std::stoul(environment("KITE_TEST_SEED", "1")));
    const int events = std::stoi(environment("KITE_TEST_EVENTS", "600"));
    RecordProperty("seed", static_cast<int>(seed));
    std::printf("Seed %u, %d events\n", seed, events);

    TourUnderTest tour;
    ASSERT_TRUE(tour.start());
    Monkey monkey{tour, seed};
    for (int event = 0; event < events && !HasFailure(); ++event) {
        SCOPED_TRACE("Event " + std::to_string(event) + ", seed " + std::to_string(seed) + ": " +
                     monkey.latest());
        monkey.act();
    }
    ASSERT_TRUE(tour.leave()) << "It hangs, after seed " << seed;
    tour.expectCleanEnd();
}
