#include "clipboard_support.h"

#include "connection.h"
#include "ignored_leaks.h"

namespace kite::testing {

namespace {

std::string printedBy(const std::vector<std::string>& command)
{
    Process process{command};
    const IgnoredLeaks
        toolkits;  // Motif forgets the clipboard's lock each time it answers another client
    EXPECT_TRUE(process.wait()) << command[0];
    return process.output();
}

std::vector<std::string> clientCommand(const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{KITE_CLIPBOARD_CLIENT};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

}  // namespace

std::string pastedByXclip()
{
    return printedBy({"xclip", "-o", "-selection", "clipboard", "-target", "STRING"});
}

std::string pastedByXsel()
{
    return printedBy({"xsel", "--clipboard", "--output"});
}

std::string clipLine(int number)
{
    std::vector<char> buffer(2000000);
    const int result = guiPasteText(buffer.data(), static_cast<int>(buffer.size()), number);
    std::string text = buffer.data();
    if (result <= 0 && text.empty()) return "[" + std::to_string(result) + "]";
    EXPECT_EQ(result, static_cast<int>(text.size()));
    return text;
}

Client::Client(const std::vector<std::string>& arguments) : process_(clientCommand(arguments))
{
    EXPECT_TRUE(waitUntil([&] { return process_.output() == "ready"; })) << process_.output();
}

Owner::Owner(const std::vector<std::string>& command, const std::string& text)
    : before_(clipboardOwner()), process_(command, {}, text)
{
    EXPECT_TRUE(pumpUntil([&] {
        const Window now = clipboardOwner();
        return now != None && now != before_;
    })) << process_.output();
}

Window clipboardOwner()
{
    return XGetSelectionOwner(connection(), atom("CLIPBOARD"));
}

bool isClipboardFree()
{
    Process client{clientCommand({"try-lock"})};
    EXPECT_TRUE(client.wait());
    return client.exitStatus() == 0;
}

void setSelectionPatience(milliseconds time)
{
    XtAppSetSelectionTimeout(toolkit::context(), static_cast<unsigned long>(time.count()));
}

void select(Widget text, XmTextPosition left, XmTextPosition right)
{
    XmTextSetSelection(text, left, right, XtLastTimestampProcessed(XtDisplay(text)));
}

}  // namespace kite::testing
