// A file name dropped on the Output area, by a real drag from another program.

#include "drag.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kLongest = 1023;  // of a name, in bytes

const Event drop = toWindow(GUI_EVENT_DROP, 0, 0, 0);

// Drops a name and waits for the event.
void dropName(const std::string& name)
{
    Recorder::instance().clear();
    const Drag drag{"file", name};
    EXPECT_TRUE(App::instance().waitForEvent(drop));
}

struct Fetched {
    int length;
    std::string name;

    bool operator==(const Fetched&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Fetched& fetched)
{
    return out << fetched.length << " \"" << fetched.name << '"';
}

// The buffer is as large as it is said to be, for the sanitizers.
Fetched fetch(int size)
{
    std::vector<char> buffer(static_cast<std::size_t>(size), 'x');
    const int length = guiGetDropName(buffer.data(), size);
    return {length, buffer.data()};
}

const Fetched nothing{GUI_FAILED, ""};

}  // namespace

GUI_TEST(FileDrop, RaisesItsEvent)
{
    dropName("/tmp/a file");
    EXPECT_THAT(recorder.events(), ElementsAre(drop));
}

GUI_STARTUP_TEST(FileDrop, GoesToTheHostCallbackWithoutWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        const Drag drag{"file", "/tmp/a"};
        EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_DROP, 0, 0, 0)));
    });
}

GUI_TEST(FileDrop, NameIsThereInTheHandler)
{
    Fetched fetched{};
    recorder.onEvent(GUI_EVENT_DROP, [&] { fetched = fetch(100); });
    dropName("/tmp/a file");
    EXPECT_EQ(fetched, (Fetched{11, "/tmp/a file"}));
}

GUI_TEST(FileDrop, PutsNothingIntoTheText)
{
    dropName("/tmp/a");
    settle();
    EXPECT_EQ(textOf(app.find("v_text")), "");
}

GUI_TEST(FileDrop, NameIsForgottenOnceFetched)
{
    dropName("/tmp/a");
    EXPECT_EQ(fetch(100), (Fetched{6, "/tmp/a"}));
    EXPECT_EQ(fetch(100), nothing);
}

GUI_TEST(FileDrop, NameNeedsABufferLargerThanItself)
{
    dropName("abcdef");
    EXPECT_EQ(fetch(2), nothing);
    EXPECT_EQ(fetch(5), nothing);
    EXPECT_EQ(fetch(6), nothing);
    EXPECT_EQ(fetch(7), (Fetched{6, "abcdef"}));
    EXPECT_EQ(fetch(7), nothing);
}

GUI_TEST(FileDrop, SmallestBufferTakesOneByte)
{
    dropName("a");
    EXPECT_EQ(fetch(2), (Fetched{1, "a"}));
    dropName("ab");
    EXPECT_EQ(fetch(2), nothing);
    EXPECT_EQ(fetch(3), (Fetched{2, "ab"}));
}

GUI_TEST(FileDrop, NoNameLeavesAnEmptyBuffer)
{
    EXPECT_EQ(fetch(2), nothing);
    EXPECT_EQ(fetch(2000), nothing);
}

GUI_TEST(FileDrop, InvalidBuffersAreReportedAndKeepTheName)
{
    dropName("a");
    char buffer[10] = "as it was";
    EXPECT_MISUSE(guiGetDropName(nullptr, 10), "GetDropName: invalid buffer", -1);
    for (const int size : {1, 0, -1})
        EXPECT_MISUSE(guiGetDropName(buffer, size), "GetDropName: invalid buffer", -1);
    EXPECT_STREQ(buffer, "as it was");
    EXPECT_EQ(fetch(2), (Fetched{1, "a"}));
}

GUI_STARTUP_TEST(FileDrop, NoNameBeforeTheStart)
{
    EXPECT_EQ(fetch(100), nothing);
    EXPECT_EQ(guiGetDropName(nullptr, 100), -1);
}

GUI_TEST(FileDrop, LatestNameCounts)
{
    dropName("/tmp/first");
    dropName("/tmp/2");
    EXPECT_EQ(fetch(100), (Fetched{6, "/tmp/2"}));
    EXPECT_EQ(fetch(100), nothing);
}

GUI_TEST(FileDrop, AnyBytesAreAName)
{
    const std::string name = "/tmp/\xe4 \n%s\"\x01\xff";
    dropName(name);
    EXPECT_EQ(fetch(100), (Fetched{static_cast<int>(name.size()), name}));
}

GUI_TEST(FileDrop, LongestNameIsKeptWhole)
{
    const std::string name(kLongest, 'n');
    dropName(name);
    EXPECT_EQ(fetch(kLongest), nothing);
    EXPECT_EQ(fetch(kLongest + 1), (Fetched{kLongest, name}));
}

GUI_TEST(FileDrop, LongerNamesAreCut)
{
    for (const std::size_t length : {1024u, 5000u}) {
        SCOPED_TRACE(length);
        dropName(std::string(length, 'n'));
        EXPECT_EQ(fetch(10000), (Fetched{kLongest, std::string(kLongest, 'n')}));
    }
}

GUI_TEST(FileDrop, OtherFormatsAreNoNames)
{
    dropName("/tmp/before");
    recorder.clear();
    {
        Drag numbers{"file-of-numbers", ""};
        EXPECT_TRUE(numbers.waitUntilAsked());
        settle();
    }
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_EQ(fetch(100), (Fetched{11, "/tmp/before"}));
}

GUI_TEST(FileDrop, RefusedNamesAreNone)
{
    recorder.clear();
    {
        Drag refused{"refused-file", "/tmp/a"};
        EXPECT_TRUE(refused.waitUntilAsked());
        settle();
    }
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_EQ(fetch(100), nothing);
}

GUI_TEST(FileDrop, HandlerMayStartTheTimer)
{
    recorder.onEvent(GUI_EVENT_DROP, [] { guiTimer(100); });
    dropName("/tmp/a");
    EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= 2; }));
}

// The timer comes and goes while the source takes its time to tell the name.
GUI_TEST(FileDrop, LeavesARunningTimerAlone)
{
    guiTimer(100);
    Drag drag{"slow-file", "/tmp/a"};
    EXPECT_TRUE(app.waitForEvent(drop));
    recorder.clear();
    EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= 5; }));
}

GUI_TEST(FileDrop, HandlerMayOpenABox)
{
    recorder.onEvent(GUI_EVENT_DROP, [] { guiInfoBox("Thank you"); });
    app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
    dropName("/tmp/a");
    EXPECT_EQ(fetch(100), (Fetched{6, "/tmp/a"}));
}

GUI_TEST(FileDrop, HandlerMayCloseTheFrame)
{
    recorder.onEvent(GUI_EVENT_DROP, [] { guiClose(0); });
    dropName("/tmp/a");
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_EQ(fetch(100), (Fetched{6, "/tmp/a"}));
}
