// The periodic timer.

#include <chrono>
#include <climits>

#include "events_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::IsEmpty;

namespace {

using Clock = std::chrono::steady_clock;

constexpr milliseconds kShortest{100};
constexpr milliseconds kSilence{350};  // more than three of the shortest intervals
constexpr int kNever = 3'600'000;      // milliseconds

const Event tick = toWindow(GUI_EVENT_TIMER, 0, 0, 0);

bool waitForTicks(int count)
{
    return pumpUntil([=] { return Recorder::instance().count(GUI_EVENT_TIMER) >= count; });
}

bool isSilent()
{
    const int before = Recorder::instance().count(GUI_EVENT_TIMER);
    return holdsFor([=] { return Recorder::instance().count(GUI_EVENT_TIMER) == before; },
                    kSilence);
}

}  // namespace

GUI_TEST(Timer, RaisesItsEventAgainAndAgain)
{
    recorder.clear();
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(3));
    guiTimer(0);
    EXPECT_THAT(recorder.events(), ElementsAre(tick, tick, tick));
}

GUI_TEST(Timer, DoesNotRunByItself)
{
    EXPECT_TRUE(isSilent());
    EXPECT_EQ(recorder.count(GUI_EVENT_TIMER), 0);
}

GUI_TEST(Timer, WaitsForTheWholeInterval)
{
    const auto start = Clock::now();
    guiTimer(300);
    EXPECT_TRUE(waitForTicks(1));
    EXPECT_GE(Clock::now() - start, milliseconds{300});
}

GUI_TEST(Timer, IntervalsBelowAHundredAreNone)
{
    for (const int interval : {99, 1, 0, -1, -100, INT_MIN}) {
        SCOPED_TRACE(interval);
        guiTimer(interval);
        EXPECT_TRUE(isSilent());
    }
}

GUI_TEST(Timer, IntervalBelowAHundredStopsIt)
{
    for (const int interval : {99, 0, -1}) {
        SCOPED_TRACE(interval);
        recorder.clear();
        guiTimer(100);
        EXPECT_TRUE(waitForTicks(1));
        guiTimer(interval);
        EXPECT_TRUE(isSilent());
    }
}

GUI_TEST(Timer, NewLongIntervalReplacesAShortOne)
{
    guiTimer(100);
    guiTimer(kNever);
    EXPECT_TRUE(isSilent());
}

GUI_TEST(Timer, NewShortIntervalReplacesALongOne)
{
    guiTimer(kNever);
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(2));
}

GUI_TEST(Timer, LargestIntervalIsOne)
{
    guiTimer(INT_MAX);
    EXPECT_TRUE(isSilent());
}

GUI_TEST(Timer, IsOnlyOne)
{
    std::vector<Clock::time_point> times;
    recorder.onEvent(GUI_EVENT_TIMER, [&] { times.push_back(Clock::now()); });
    for (int i = 0; i < 5; ++i) guiTimer(100);
    EXPECT_TRUE(waitForTicks(4));
    guiTimer(0);
    std::vector<Clock::duration> gaps;
    for (std::size_t i = 1; i < times.size(); ++i) gaps.push_back(times[i] - times[i - 1]);
    EXPECT_THAT(gaps, Each(Ge(kShortest)));
}

GUI_TEST(Timer, HandlerMayStopIt)
{
    for (const int interval : {99, 0}) {
        SCOPED_TRACE(interval);
        recorder.clear();
        recorder.onEvent(GUI_EVENT_TIMER, [=] { guiTimer(interval); });
        guiTimer(100);
        EXPECT_TRUE(waitForTicks(1));
        EXPECT_TRUE(isSilent());
        EXPECT_EQ(recorder.count(GUI_EVENT_TIMER), 1);
    }
}

GUI_TEST(Timer, HandlerMayChangeTheInterval)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiTimer(kNever); });
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(1));
    EXPECT_TRUE(isSilent());
}

GUI_TEST(Timer, RestartInTheHandlerIsStillOneTimer)
{
    std::vector<Clock::time_point> times;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        times.push_back(Clock::now());
        guiTimer(100);
    });
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(4));
    for (std::size_t i = 1; i < times.size(); ++i) EXPECT_GE(times[i] - times[i - 1], kShortest);
}

GUI_TEST(Timer, NextIntervalBeginsWhenTheHandlerHasReturned)
{
    Clock::time_point returned;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        if (recorder.count(GUI_EVENT_TIMER) > 1) return;
        EXPECT_TRUE(isSilent());
        returned = Clock::now();
    });
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(2));
    EXPECT_GE(Clock::now() - returned, kShortest);
}

GUI_TEST(Timer, StaysSilentWhileItsHandlerWaitsInABox)
{
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        if (recorder.count(GUI_EVENT_TIMER) == 1) guiInfoBox("The time has come");
    });
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_TRUE(isSilent());
        box.key(XK_Return);
    });
    guiTimer(100);
    EXPECT_TRUE(waitForTicks(2));
}

GUI_TEST(Timer, RunsWhileABoxIsOpen)
{
    guiTimer(100);
    recorder.clear();
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_TIMER)));
        box.key(XK_Return);
    });
    guiInfoBox("Meanwhile");
    EXPECT_TRUE(app.waitForEvent(tick));
}

GUI_STARTUP_TEST(Timer, HandlerMayCloseTheFrame)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(0); });
    app.run([&] {
        guiTimer(100);
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_EQ(recorder.count(GUI_EVENT_TIMER), 1);
}

GUI_STARTUP_TEST(Timer, NeedsTheLibraryStarted)
{
    guiTimer(100);
    app.run([] { EXPECT_TRUE(isSilent()); });
    guiTimer(100);
    guiTimer(0);
    EXPECT_EQ(recorder.count(GUI_EVENT_TIMER), 0);
}
