// Another client that keeps the clipboard locked: every call waits until it lets go.

#include <sys/wait.h>

#include <chrono>

#include "text_kinds.h"

using namespace kite::testing;

namespace {

constexpr milliseconds kHeld{500};

// Locked from now on for that time.
class Lock {
public:
    Lock() : client_({"lock", std::to_string(kHeld.count())}) {}
    ~Lock()
    {
        const auto waited = std::chrono::steady_clock::now() - start_;
        EXPECT_GE(waited, kHeld / 2) << "the call has not waited";
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    Client client_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace

GUI_TEST(ClipboardLock, IsWaitedForByEveryCall)
{
    Widget const output = app.find("v_text");
    guiWriteText("output");
    const auto held = [](const char* name, const std::function<void()>& call) {
        SCOPED_TRACE(name);
        {
            const Lock lock;
            call();
        }
        EXPECT_TRUE(isClipboardFree());
    };
    held("guiCopyText", [] { guiCopyText("a"); });
    EXPECT_EQ(pastedByXclip(), "a\n");
    held("guiCopyAppText", [] { guiCopyAppText("b"); });
    EXPECT_EQ(pastedByXclip(), "a\nb\n");
    held("guiClipLines", [] { EXPECT_EQ(guiClipLines(), 2); });
    held("guiPasteText", [] { EXPECT_EQ(clipLine(2), "b"); });
    select(output, 0, 3);
    held("guiCopySel", [&] { guiCopySel(output); });
    EXPECT_EQ(pastedByXclip(), "out");
    guiCopyText("x");
    held("guiCutSel", [&] { guiCutSel(output); });
    EXPECT_EQ(pastedByXclip(), "out");
    EXPECT_EQ(textOf(output), "put");
    XmTextSetInsertionPosition(output, 3);
    held("guiPasteSel", [&] { guiPasteSel(output); });
    EXPECT_EQ(textOf(output), "putout");
}

GUI_TEST(ClipboardLock, IsNotHeldInVain)
{
    // Also while a handler goes on without letting events pass.
    {
        Widget const output = app.find("v_text");
        guiWriteText("output");
        const std::function<void()> calls[] = {
            [] { guiCopyText("a"); }, [] { guiCopyAppText("b"); },
            [] { EXPECT_EQ(guiClipLines(), 2); }, [] { EXPECT_EQ(clipLine(1), "a"); },
            [&] { guiPasteSel(output); }};
        for (const auto& call : calls) {
            call();
            Process client{{KITE_CLIPBOARD_CLIENT, "try-lock"}};
            siginfo_t ended{};
            ASSERT_EQ(waitid(P_PID, static_cast<id_t>(client.pid()), &ended, WEXITED | WNOWAIT), 0);
            EXPECT_EQ(ended.si_status, 0);
        }
    }

    // The locker ends without letting go.
    {
        Client client{{"lock", "20000"}};
        const Process killer{
            {"sh", "-c", "sleep 0.3; kill -KILL " + std::to_string(client->pid())}};
        guiCopyText("abc");
        EXPECT_EQ(pastedByXclip(), "abc\n");
        EXPECT_TRUE(isClipboardFree());
    }

    // What has nothing to do with the clipboard does not wait for it.
    {
        Client client{{"lock", "20000"}};
        Widget const output = app.find("v_text");
        XmTextSetString(findWidget("v_text"), const_cast<char*>(""));
        guiWriteText("output");
        char buffer[10];
        guiCopyText(nullptr);
        guiCopyAppText(nullptr);
        guiCopyText(std::string(4095, 'x').c_str());
        guiCopySel(output);  // nothing is selected
        guiCutSel(output);
        guiPasteSel(nullptr);
        EXPECT_EQ(guiPasteText(buffer, sizeof buffer, -1), -1);
        EXPECT_MISUSE(guiPasteText(buffer, 1, 1), "GetClipLine: invalid buffer", -1);
        EXPECT_EQ(textOf(output), "output");
        EXPECT_TRUE(client->isRunning());
        EXPECT_FALSE(isClipboardFree());
    }
}
