// argument_list.h: resources for a widget, when not all of them are always given.

#pragma once

#include <X11/Intrinsic.h>

#include <array>
#include <type_traits>

namespace kite {

class ArgumentList {
public:
    template <typename T>
    void set(const char* name, T value)
    {
        static_assert(std::is_pointer_v<T> || std::is_integral_v<T> || std::is_enum_v<T>);
        Arg& next = arguments_.at(count_);  // more than there is room for ends the process
        ++count_;
        next.name = const_cast<char*>(name);
        next.value = (XtArgVal)value;  // NOLINT: pointers and numbers alike, as Xt's own macro does
    }

    ArgList data() { return arguments_.data(); }
    Cardinal size() const { return count_; }

private:
    static constexpr std::size_t kMost = 24;

    std::array<Arg, kMost> arguments_{};
    Cardinal count_ = 0;
};

}  // namespace kite
