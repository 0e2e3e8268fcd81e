// The copy of its text that a multi-line text leaves in XmNuserData when the user changes it.

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

const char* copyOf(int id)
{
    return static_cast<const char*>(resource<XtPointer>(innerOf(id), XmNuserData));
}

void runText(const std::function<void(Shown)>& use)
{
    runDialog([] { guiText(3, 0, 5, 0, 100, 0); }, use);
}

}  // namespace

GUI_TEST(TextCopy, IsMadeAtEachChangeOfTheUser)
{
    runText([](Shown dialog) {
        EXPECT_EQ(copyOf(3), nullptr) << "at first";
        for (const char* const text : {"a", "ab", "ab\n", "ab\nc"}) {
            dialog.type(std::string(1, std::string{text}.back()));
            ASSERT_TRUE(copyOf(3)) << text;
            EXPECT_STREQ(copyOf(3), text);
        }
        dialog.key(XK_Left);
        EXPECT_STREQ(copyOf(3), "ab\nc") << "no change";
    });

    runText([](Shown dialog) {
        dialog.type("a");
        ASSERT_TRUE(copyOf(3));
        dialog.key(XK_BackSpace);
        EXPECT_EQ(copyOf(3), nullptr);
    });
}

GUI_TEST(TextCopy, IsThereForTheHandler)
{
    std::vector<std::string> copies;
    recorder.onEvent(GUI_EVENT_CURSOR, 3,
                     [&] { copies.emplace_back(copyOf(3) ? copyOf(3) : "none"); });
    runText([](Shown dialog) {
        dialog.type("ab");
        dialog.key(XK_BackSpace);
        dialog.key(XK_BackSpace);
    });
    EXPECT_THAT(copies, ::testing::ElementsAre("a", "ab", "a", "none"));
}

GUI_TEST(TextCopy, GoesWhenTheHostChangesTheText)
{
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"guiSetText", [] { guiSetText(3, "host"); }},
        {"guiSetText to nothing", [] { guiSetText(3, ""); }},
        {"guiInsertText", [] { guiInsertText(3, "host"); }},
        {"guiAppendLine", [] { guiAppendLine(3, "host"); }},
    };
    runText([&](Shown dialog) {
        for (const auto& [name, change] : changes) {
            dialog.type("a");
            ASSERT_TRUE(copyOf(3)) << name;
            change();
            EXPECT_EQ(copyOf(3), nullptr) << name;
        }
    });
}

// It is the text's own: two of them, closed with their copies, and what the sanitizer says of it.
GUI_TEST(TextCopy, EachTextHasItsOwn)
{
    for (int round = 0; round < 2; ++round)
        runDialog(
            [] {
                guiText(3, 0, 3, 0, 100, 0);
                guiText(4, 3, 3, 0, 100, 0);
            },
            [this](Shown dialog) {
                dialog.type("first");
                robot.click(innerOf(4));
                dialog.type("second");
                EXPECT_STREQ(copyOf(3), "first");
                EXPECT_STREQ(copyOf(4), "second");
            });
}
