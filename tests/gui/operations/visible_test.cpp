// guiSetVisible.

#include "connection.h"
#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

bool isOnScreen(int id)
{
    return isViewable(windowOf(outerOf(id)));
}

}  // namespace

GUI_TEST(Visible, HidesAndShowsEveryKind)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown dialog) {
                   const Rect size = rectOf(dialog.widget());
                   for (const Kind kind : kAllKinds) {
                       SCOPED_TRACE(kind);
                       ASSERT_TRUE(isOnScreen(kind));
                       const Rect place = rectOf(outerOf(kind));
                       guiSetVisible(kind, 0);
                       EXPECT_TRUE(pumpUntil([&] { return !isOnScreen(kind); }));
                       EXPECT_FALSE(isViewable(windowOf(innerOf(kind))));
                       for (const Kind other : kAllKinds)
                           EXPECT_TRUE(other == kind || isOnScreen(other)) << other;
                       guiSetVisible(kind, 1);
                       EXPECT_TRUE(pumpUntil([&] { return isOnScreen(kind); }));
                       EXPECT_TRUE(pumpUntil([&] { return isViewable(windowOf(innerOf(kind))); }));
                       EXPECT_EQ(rectOf(outerOf(kind)), place);
                       EXPECT_EQ(rectOf(dialog.widget()), size);
                   }
               }});
}

GUI_TEST(Visible, HiddenBeforeTheDialogIsSeen)
{
    runDialog({.build = buildSimpleKinds,
               .fill =
                   [] {
                       makeOtherKinds();
                       for (const Kind kind : kAllKinds) guiSetVisible(kind, 0);
                   },
               .look =
                   [](Shown) {
                       for (const Kind kind : kAllKinds) EXPECT_FALSE(isOnScreen(kind)) << kind;
                       for (const int visible : {-1, 2, 256}) {
                           guiSetVisible(Edit, visible);
                           EXPECT_TRUE(pumpUntil([] { return isOnScreen(Edit); })) << visible;
                           guiSetVisible(Edit, 0);
                           EXPECT_TRUE(pumpUntil([] { return !isOnScreen(Edit); }));
                       }
                   }});
}

GUI_TEST(Visible, AHiddenControlCanBeChanged)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown) {
                   guiSetVisible(Edit, 0);
                   guiSetText(Edit, "behind the curtain");
                   EXPECT_EQ(guiGetTextLen(Edit), 18);
                   EXPECT_EQ(guiIdStatus(Edit), 1);
                   guiSetVisible(Edit, 1);
                   EXPECT_TRUE(pumpUntil([] { return isOnScreen(Edit); }));
                   EXPECT_EQ(textOf(outerOf(Edit)), "behind the curtain");
               }});
}
