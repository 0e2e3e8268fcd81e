// Other programs: what they find on the clipboard, and what the library finds of theirs.

#include "clipboard_support.h"

#include "connection.h"
#include "ignored_leaks.h"

using namespace kite::testing;
using ::testing::HasSubstr;

namespace {

const std::vector<std::string> kXclip{"xclip", "-i", "-selection", "clipboard", "-quiet"};
const std::vector<std::string> kXsel{"xsel", "--clipboard", "--input", "--nodetach"};

// All that the toolkit keeps of the clipboard, on the root window.
std::string clipboardProperties()
{
    int count = 0;
    Atom* const properties = XListProperties(connection(), rootWindow(), &count);
    std::string all;
    for (int i = 0; i < count; ++i) {
        Atom type = None;
        int format = 0;
        unsigned long items = 0, rest = 0;
        unsigned char* bytes = nullptr;
        XGetWindowProperty(connection(), rootWindow(), properties[i], 0, 1000, False,
                           AnyPropertyType, &type, &format, &items, &rest, &bytes);
        if (bytes && format == 8) all.append(reinterpret_cast<char*>(bytes), items);
        if (bytes) XFree(bytes);
    }
    if (properties) XFree(properties);
    return all;
}

}  // namespace

GUI_TEST(ClipboardClients, ReadWhatWasCopied)
{
    guiCopyText("for all");
    EXPECT_EQ(pastedByXclip(), "for all\n");
    EXPECT_EQ(pastedByXsel(), "for all\n");
    Process client{{KITE_CLIPBOARD_CLIENT, "paste"}};
    {
        const IgnoredLeaks toolkits;  // as in clipboard_support.cpp
        ASSERT_TRUE(client.wait());
    }
    EXPECT_EQ(client.output(), "for all\n");

    // In no other format.
    for (const char* const format : {"COMPOUND_TEXT", "UTF8_STRING", "TEXT"}) {
        Process other{{"xclip", "-o", "-selection", "clipboard", "-target", format}};
        const IgnoredLeaks toolkits;
        ASSERT_TRUE(other.wait());
        EXPECT_NE(other.exitStatus(), 0) << format;
    }

    // In the name of the frame.
    EXPECT_EQ(toolkit::display() ? XtWindowToWidget(toolkit::display(), clipboardOwner()) : nullptr,
              app.shell());
    EXPECT_THAT(clipboardProperties(), HasSubstr("guiCopyText"));
}

GUI_TEST(ClipboardClients, AreRead)
{
    // Are read as plain text.
    {
        for (const auto& command : {kXclip, kXsel}) {
            SCOPED_TRACE(command[0]);
            const Owner owner{command, "one\ntwo"};
            EXPECT_EQ(guiClipLines(), 2);
            EXPECT_EQ(clipLine(1), "one");
            EXPECT_EQ(clipLine(2), "two");
            guiCopyAppText("!");
            EXPECT_EQ(pastedByXclip(), "one\ntwo!\n");
        }
    }

    // STRING is asked for first.
    {
        struct {
            std::vector<std::string> client;
            int lines;
            std::string first;
        } const rows[] = {
            {{"own", "STRING", "s", "COMPOUND_TEXT", "c\nc"}, 1, "s"},
            {{"own", "COMPOUND_TEXT", "c\nd"}, 2, "c"},
            {{"own", "STRING", "", "COMPOUND_TEXT", "c\nd"}, 2, "c"},
            {{"own", "STRING", "", "COMPOUND_TEXT", ""}, 0, "[0]"},
            {{"own", "COMPOUND_TEXT", ""}, 0, "[0]"},
            {{"own", "UTF8_STRING", "u"}, 0, "[0]"},
            {{"motif", "m\nn"}, 2, "m"},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(::testing::PrintToString(row.client));
            const Client client{row.client};
            EXPECT_EQ(guiClipLines(), row.lines);
            EXPECT_TRUE(isClipboardFree());
            EXPECT_EQ(clipLine(1), row.first);
            EXPECT_TRUE(isClipboardFree());
        }
    }

    // Are asked again each time.
    {
        guiCopyText("ours");
        {
            const Client client{{"own", "STRING", "theirs"}};
            settle();
            EXPECT_EQ(clipLine(1), "theirs");
            guiCopyText("ours again");
            EXPECT_EQ(clipLine(1), "ours again");
        }
        {
            const Client client{{"own", "STRING", "theirs"}};
            EXPECT_EQ(clipLine(1), "theirs") << "without an event in between";
        }
        EXPECT_TRUE(isClipboardFree());
    }
}
