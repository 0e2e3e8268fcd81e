// ignored_leaks.h: a scope in which the leak checker looks away.
//
// For leaks that are proven to be the toolkit's and have no name that tests/support/lsan.supp could list.

#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace kite::testing {

class IgnoredLeaks {
public:
#if defined(__SANITIZE_ADDRESS__)
    IgnoredLeaks()
    {
        __lsan_disable();
    }
    ~IgnoredLeaks()
    {
        __lsan_enable();
    }
#else
    IgnoredLeaks() {}
#endif
    IgnoredLeaks(const IgnoredLeaks&) = delete;
    IgnoredLeaks& operator=(const IgnoredLeaks&) = delete;
};

}  // namespace kite::testing
