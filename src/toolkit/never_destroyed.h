// never_destroyed.h: library state that holds on to toolkit objects.

#pragma once

namespace kite {

// A state of the library that is not destroyed when the process ends: what it refers to belongs to the
// toolkit, and a host may have closed its displays and applications long before.
template <typename State>
State& neverDestroyed()
{
    static State& state = *new State;
    return state;
}

}  // namespace kite
