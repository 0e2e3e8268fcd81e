#include "measured.h"

#include "x_traffic.h"

namespace bench {

void Measured::begin(Display* display)
{
    roundTrips_ -= roundTrips();
    requests_ -= display ? static_cast<double>(NextRequest(display)) : 1.0;
    begun_ = Clock::now();
}

void Measured::end(Display* display)
{
    state_.SetIterationTime(std::chrono::duration<double>(Clock::now() - begun_).count());
    roundTrips_ += roundTrips();
    requests_ += static_cast<double>(NextRequest(display));
}

void Measured::report()
{
    using benchmark::Counter;
    state_.counters["round_trips"] =
        Counter(static_cast<double>(roundTrips_), Counter::kAvgIterations);
    state_.counters["requests"] = Counter(requests_, Counter::kAvgIterations);
}

}  // namespace bench
