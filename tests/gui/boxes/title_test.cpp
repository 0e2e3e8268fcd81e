// The titles of the boxes.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

const std::string kLongestTitle(63, 'T');

// Error boxes say so in their titles.
void expectTitles(const std::string& title)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            EXPECT_EQ(box.title(), kind.call == "guiErrorBox" ? title + " Error" : title);
        });
}

}  // namespace

GUI_TEST(BoxTitle, IsKiteByDefault)
{
    expectTitles("Kite");
}

GUI_STARTUP_TEST(BoxTitle, IsTheApplicationTitle)
{
    guiSetAppInfo("Bird Watch", "birds");
    app.run([] { expectTitles("Bird Watch"); });
}

GUI_STARTUP_TEST(BoxTitle, HoldsTheLongestApplicationTitle)
{
    guiSetAppInfo(kLongestTitle.c_str(), "birds");
    app.run([] { expectTitles(kLongestTitle); });
}

GUI_STARTUP_TEST(BoxTitle, HoldsAsMuchAsIsKeptOfALongerTitle)
{
    guiSetAppInfo((kLongestTitle + "UV").c_str(), "birds");
    app.run([] { expectTitles(kLongestTitle); });
}

GUI_TEST(BoxTitle, FollowsTheApplicationTitle)
{
    guiSetAppInfo("Later", nullptr);
    watchToolkitErrors(toolkit::context());
    expectTitles("Later");
}

GUI_TEST(BoxTitle, IsNotTheTitleOfTheFrame)
{
    guiSetFrameTitle("Document 1");
    expectTitles("Kite");
}
