// What the toolbar keeps in the server: two pictures for each button, as long as the button is there.

#include "commands_support.h"
#include "server_resources.h"

using namespace kite::testing;

namespace {

constexpr int kRounds = 20;

std::pair<unsigned, unsigned> picturesAndContexts()
{
    auto resources = serverResources(toolkit::display());
    return {resources["PIXMAP"], resources["GC"]};
}

void addButton(int id)
{
    ASSERT_GT(guiToolbarButton("image", "Tip", id % 2 ? GUI_CHECK : GUI_PLAIN, id), 0);
}

}  // namespace

GUI_STARTUP_TEST(ToolbarResources, GoWithTheButtons)
{
    app.init();
    addImage("image");
    addButton(1);
    guiRestart();
    settle();
    const auto [pictures, contexts] = picturesAndContexts();
    for (int id = 1; id <= kRounds; ++id) addButton(id);
    EXPECT_EQ(picturesAndContexts().first, pictures + 2 * kRounds);
    // The toolkit keeps a few contexts of its own for the widgets.
    EXPECT_LE(picturesAndContexts().second, contexts + 8);
    XtDestroyWidget(toolbarButtons().front());
    settle();
    EXPECT_EQ(picturesAndContexts().first, pictures + 2 * (kRounds - 1));
    guiRestart();
    settle();
    EXPECT_EQ(picturesAndContexts().first, pictures);
}

GUI_STARTUP_TEST(ToolbarResources, AreNotLeftByRefusedButtons)
{
    app.init();
    addImage("wrong", 20, 21);
    EXPECT_MISUSE(
        guiToolbarButton("wrong", nullptr, 0, 1),
        "ToolbarButton: image " + host.appDir().string() + "/tbbb/wrong.bmp has wrong size", -1);
    const auto before = picturesAndContexts();
    for (int round = 0; round < 5; ++round) {
        EXPECT_EQ(errorsDuring([] { guiToolbarButton("wrong", nullptr, 0, 1); }).size(), 1U);
        EXPECT_EQ(errorsDuring([] { guiToolbarButton("missing", nullptr, 0, 1); }).size(), 1U);
    }
    EXPECT_EQ(picturesAndContexts(), before);
}
