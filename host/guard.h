// guard.h: no exception leaves a host service: its callers may be C.

#pragma once

#include <exception>

namespace kitehost {

// What `call` returns, or `failure` when memory ran out on the way.
template <class Result, class Call>
Result guarded(Result failure, Call call) noexcept
{
    try {
        return call();
    } catch (const std::exception&) {
        return failure;
    }
}

}  // namespace kitehost
