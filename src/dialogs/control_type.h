// control_type.h: the kinds of controls, and how a widget tells which control it is.
//
// A control's outer widget carries its tag in XmNuserData: the id in the upper 16 bits, the type in the
// lower ones. It is what finds a control once its dialog runs.

#pragma once

#include <X11/Intrinsic.h>

#include <cstdint>
#include <initializer_list>

namespace kite {

enum class ControlType {
    Label = 1,
    Edit = 2,
    Button = 3,
    Check = 4,
    Radio = 5,
    Choice = 6,
    List = 7,
    Text = 8,
    Line = 9,
    Image = 10,
    // 11 is kept free
    Combo = 12,
    Progress = 13,
    Tree = 14,
    Slider = 15,
    Spin = 16
};

inline constexpr int kAnonymous = -1;  // the id of controls that no operation ever needs
inline constexpr int kLargestId = 32767;

class TypeSet {
public:
    constexpr TypeSet(std::initializer_list<ControlType> types)
    {
        for (const ControlType type : types) bits_ |= bit(type);
    }

    constexpr bool has(ControlType type) const { return (bits_ & bit(type)) != 0; }

private:
    static constexpr std::uint32_t bit(ControlType type)
    {
        return std::uint32_t{1} << static_cast<unsigned>(type);
    }

    std::uint32_t bits_ = 0;
};

class Tag {
public:
    constexpr Tag(int id, ControlType type)
        : value_(static_cast<std::int32_t>(static_cast<std::uint32_t>(id) << 16 |
                                           static_cast<std::uint32_t>(type)))
    {
    }

    // As it stands in a widget's user data. 0, or what a host has put there, is the tag of no control.
    explicit Tag(XtPointer userData)
        : value_(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(userData)))
    {
    }
    static Tag of(Widget widget);

    XtPointer userData() const
    {
        return reinterpret_cast<XtPointer>(static_cast<std::intptr_t>(value_));
    }

    // The id as the host gave it, kAnonymous too.
    constexpr int id() const { return value_ >> 16; }

    // False for widgets that are no controls: 0 is no type.
    constexpr bool isControl() const { return (value_ & 31) != 0; }

    // 0 to 31; no control has a type beyond those above.
    constexpr ControlType type() const { return static_cast<ControlType>(value_ & 31); }

private:
    std::int32_t value_;
};

}  // namespace kite
