// There is no memory for what is on the clipboard.

#include "clipboard_support.h"

#include "output/no_memory.h"

using namespace kite::testing;

namespace {

template <typename Call>
auto exhausted(Call call)
{
    const Exhausted now;
    return call();
}

}  // namespace

GUI_TEST(ClipboardWithoutMemory, FindsNothingAndLeavesIt)
{
    const std::string text(kLarge, 'a');
    const Client client{{"own", "STRING", text}};
    Widget const output = app.find("v_text");
    char buffer[] = "####";
    EXPECT_EQ(exhausted([] { return guiClipLines(); }), 0);
    EXPECT_EQ(exhausted([&] { return guiPasteText(buffer, sizeof buffer, 1); }), 0);
    EXPECT_STREQ(buffer, "");
    exhausted([&] { guiPasteSel(output); });
    EXPECT_EQ(textOf(output), "");
    EXPECT_TRUE(isClipboardFree());
    EXPECT_EQ(guiClipLines(), 1);
    EXPECT_EQ(guiPasteText(buffer, sizeof buffer, 1), 4);
}
