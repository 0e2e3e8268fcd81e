// No operation on items, lines or trees raises an event.

#include <random>

#include "item_step.h"
#include "items_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

GUI_TEST(ItemEvents, ComeOfNoOperation)
{
    withItemControls([this] {
        settle();
        recorder.clear();
        std::mt19937 random{7};
        for (int i = 0; i < 1000; ++i) {
            const ItemStep step = randomStep(random);
            perform(step);
            if (step.call == Call::DelTree) recorder.clear();  // the one that lets events pass
            ASSERT_THAT(recorder.events(), IsEmpty()) << asCode(step);
        }
    });
}
