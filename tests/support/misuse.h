// misuse.h: a wrong call, and how the library reports it.
//
//     EXPECT_MISUSE(guiGetDropName(nullptr, 5), "GetDropName: invalid buffer", -1);
//     EXPECT_MISUSE(guiClose(-3), "Close: negative return code - 0 is used");   // no result
//
// The error box comes up once, with exactly that message, and is answered with a real Return key; then
// the call returns that value.

#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace kite::testing {

// The messages of all error boxes that come up during the call. Each is answered.
std::vector<std::string> errorsDuring(const std::function<void()>& call);

template <typename Call>
void expectMisuse(const Call& call, const std::string& message)
{
    EXPECT_THAT(errorsDuring([&] { static_cast<void>(call()); }), ::testing::ElementsAre(message));
}

template <typename Call, typename Result>
void expectMisuse(const Call& call, const std::string& message, const Result& expected)
{
    std::vector<std::string> messages = errorsDuring([&] { EXPECT_EQ(call(), expected); });
    EXPECT_THAT(messages, ::testing::ElementsAre(message));
}

}  // namespace kite::testing

#define EXPECT_MISUSE(call, ...)                                                                   \
    do {                                                                                           \
        SCOPED_TRACE("EXPECT_MISUSE(" #call ", " #__VA_ARGS__ ")");                                \
        ::kite::testing::expectMisuse([&] { return call; }, __VA_ARGS__);                          \
    } while (false)
