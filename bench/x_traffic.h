// x_traffic.h: counts what goes over the wire. A host may be far from its display.

#pragma once

namespace bench {

// Replies that a process has waited for so far: each costs a round trip.
long roundTrips();

}  // namespace bench
