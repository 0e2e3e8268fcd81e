// The text prompt: what goes in and what comes out.

#include "box_kinds.h"

#include <climits>

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

struct Answer {
    int result = 0;
    std::string text;

    bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* out)
{
    *out << answer.result << " \"" << answer.text << '"';
}

// A prompt that starts with the text, in a buffer of the size.
Answer ask(const std::string& start, std::size_t size, const std::function<void(Shown)>& user)
{
    std::vector<char> buffer(size + 1, '#');
    buffer[start.copy(buffer.data(), size)] = '\0';
    Script::instance().whenShown("v_promptbox", user);
    Answer answer;
    answer.result = guiGetTextBox("Name", buffer.data(), static_cast<int>(size), 0);
    answer.text = buffer.data();
    return answer;
}

Answer answerTyping(const std::string& start, std::size_t size, const std::string& keys)
{
    return ask(start, size, [&](Shown box) {
        box.type(keys);
        box.key(XK_Return);
    });
}

std::string bytesFrom(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

}  // namespace

GUI_TEST(TextBox, StartsWithTheTextOfTheBuffer)
{
    const Answer answer = ask("abc", 16, [](Shown box) {
        EXPECT_EQ(box.message(), "Name");
        EXPECT_THAT(box.texts(), ElementsAre("abc"));
        box.click("OK");
    });
    EXPECT_EQ(answer, (Answer{3, "abc"}));
}

GUI_TEST(TextBox, CancelEmptiesTheBuffer)
{
    EXPECT_EQ(ask("abc", 16, [](Shown box) { box.click("Cancel"); }), (Answer{-1, ""}));
}

GUI_TEST(TextBox, BufferIsEmptyWhileTheBoxIsShown)
{
    char buffer[16] = "abc";
    app.whenShown("v_promptbox", [&](Shown box) {
        EXPECT_STREQ(buffer, "");
        box.click("OK");
    });
    EXPECT_EQ(guiGetTextBox("Name", buffer, sizeof buffer, 0), 3);
    EXPECT_STREQ(buffer, "abc");
}

GUI_TEST(TextBox, EmptyAnswerIsNoCancel)
{
    EXPECT_EQ(ask("", 16, [](Shown box) { box.click("OK"); }), (Answer{0, ""}));
}

GUI_TEST(TextBox, AnswerIsWhatWasTyped)
{
    EXPECT_EQ(answerTyping("", 16, "Hello, world"), (Answer{12, "Hello, world"}));
}

GUI_TEST(TextBox, TypingGoesOnBehindTheStart)
{
    EXPECT_EQ(answerTyping("abc", 16, "def"), (Answer{6, "abcdef"}));
}

GUI_TEST(TextBox, StartCanBeDeleted)
{
    EXPECT_EQ(answerTyping("abc", 16, "\b\b\bx"), (Answer{1, "x"}));
}

GUI_TEST(TextBox, FieldTakesOneByteLessThanTheBuffer)
{
    EXPECT_EQ(answerTyping("", 5, "hello"), (Answer{4, "hell"}));
    EXPECT_EQ(answerTyping("", 5, "hell"), (Answer{4, "hell"}));
    EXPECT_EQ(answerTyping("", 6, "hello"), (Answer{5, "hello"}));
    EXPECT_EQ(answerTyping("abc", 5, "de"), (Answer{4, "abcd"}));
}

GUI_TEST(TextBox, SmallestBufferTakesOneByte)
{
    EXPECT_EQ(answerTyping("", 2, "xy"), (Answer{1, "x"}));
    EXPECT_EQ(answerTyping("a", 2, "xy"), (Answer{1, "a"}));
    EXPECT_EQ(answerTyping("", 2, ""), (Answer{0, ""}));
}

GUI_TEST(TextBox, StartThatFillsTheBufferIsKept)
{
    EXPECT_EQ(answerTyping("abcd", 5, "e"), (Answer{4, "abcd"}));
}

// Nothing behind the buffer is read or written.
GUI_TEST(TextBox, UnterminatedBufferEndsWithItsSize)
{
    const Answer answer = ask("abcdefgh", 4, [](Shown box) {
        EXPECT_THAT(box.texts(), ElementsAre("abc"));
        box.click("OK");
    });
    EXPECT_EQ(answer, (Answer{3, "abc"}));
}

GUI_TEST(TextBox, BytesBeyondAsciiComeBack)
{
    const std::string bytes = bytesFrom(0x80, 0xFF);
    EXPECT_EQ(answerTyping(bytes, 256, ""), (Answer{128, bytes}));
}

GUI_TEST(TextBox, PrintableAsciiComesBack)
{
    const std::string bytes = bytesFrom(0x20, 0x7E);
    EXPECT_EQ(answerTyping(bytes, 256, ""), (Answer{95, bytes}));
}

GUI_TEST(TextBox, LettersBeyondAsciiCanBeTyped)
{
    EXPECT_EQ(answerTyping("", 16, "\u00e9\u00df"), (Answer{2, "\xE9\xDF"}));
}

GUI_TEST(TextBox, StartLongerThanTheFieldComesBack)
{
    const std::string start(500, 'w');
    EXPECT_EQ(answerTyping(start, 1000, ""), (Answer{500, start}));
    EXPECT_EQ(answerTyping(start, 1000, "!"), (Answer{501, start + '!'}));
}

GUI_TEST(TextBox, VeryLongStartComesBack)
{
    for (const std::size_t length : {65535U, 65536U, 200000U}) {
        std::string start(length, 'x');
        start.back() = 'y';
        const Answer answer = answerTyping(start, length + 1, "");
        EXPECT_EQ(answer.result, static_cast<int>(length));
        EXPECT_TRUE(answer.text == start) << "of " << length << " bytes";
    }
}

GUI_TEST(TextBox, HiddenTextComesBack)
{
    char buffer[16] = "abc";
    app.whenShown("v_promptbox", [](Shown box) {
        box.type("def");
        box.key(XK_Return);
    });
    EXPECT_EQ(guiGetTextBox("Password", buffer, sizeof buffer, 1), 6);
    EXPECT_STREQ(buffer, "abcdef");
}

GUI_TEST(TextBox, NullBufferIsRefused)
{
    EXPECT_MISUSE(guiGetTextBox("Name", nullptr, 16, 0), "GetTextBox: invalid buffer", -1);
    EXPECT_MISUSE(guiGetTextBox("Name", nullptr, 0, 1), "GetTextBox: invalid buffer", -1);
}

GUI_TEST(TextBox, BufferWithoutRoomIsRefused)
{
    bool wasAsked = false;
    const auto watch = script.wheneverShown("v_promptbox", [&](Shown box) {
        wasAsked = true;
        box.key(XK_Escape);
    });
    for (const int size : {1, 0, -1, INT_MIN}) {
        char buffer[16] = "abc";
        EXPECT_MISUSE(guiGetTextBox("Name", buffer, size, 0), "GetTextBox: invalid buffer", -1);
        EXPECT_STREQ(buffer, "abc") << size;
    }
    EXPECT_FALSE(wasAsked);
}
