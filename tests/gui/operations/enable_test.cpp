// guiEnable and guiIdStatus.

#include <Xm/ScrolledW.h>

#include "dialog_plan.h"
#include "operation_table.h"

using namespace kite::testing;

namespace {

std::vector<Kind> enabledKinds()
{
    std::vector<Kind> kinds = kAllKinds;
    std::erase_if(kinds, [](Kind kind) { return kind == Line || kind == Image; });
    return kinds;
}

bool isSensitive(Widget widget)
{
    return resource<Boolean>(widget, XmNsensitive);
}

}  // namespace

GUI_TEST(Enable, ControlsAreEnabledAtFirst)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeOtherKinds();
                   for (const Kind kind : kAllKinds) EXPECT_EQ(guiIdStatus(kind), 1) << kind;
               }});
}

GUI_TEST(Enable, ChangesTheControlAlone)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeOtherKinds();
                   for (const Kind kind : enabledKinds()) {
                       SCOPED_TRACE(kind);
                       const std::string before = stateOfDialog();
                       guiEnable(kind, 0);
                       EXPECT_EQ(guiIdStatus(kind), 0);
                       EXPECT_FALSE(isSensitive(innerOf(kind)));
                       for (const Kind other : kAllKinds)
                           EXPECT_TRUE(other == kind || guiIdStatus(other) == 1) << other;
                       guiEnable(kind, 1);
                       EXPECT_EQ(guiIdStatus(kind), 1);
                       EXPECT_EQ(stateOfDialog(), before);
                   }
               }});
}

GUI_TEST(Enable, AnyNumberButZeroEnables)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   for (const int enable : {1, -1, 2, 256, 65536}) {
                       guiEnable(Edit, 0);
                       guiEnable(Edit, enable);
                       EXPECT_EQ(guiIdStatus(Edit), 1) << enable;
                   }
               }});
}

// So that what cannot be operated can still be read.
GUI_TEST(Enable, ScrollBarsStayEnabled)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeOtherKinds();
                   for (const Kind kind : {List, MultiLine, Tree}) {
                       guiEnable(kind, 0);
                       EXPECT_FALSE(isSensitive(innerOf(kind)));
                       EXPECT_TRUE(isSensitive(outerOf(kind)));
                       for (const char* const bar : {XmNverticalScrollBar, XmNhorizontalScrollBar})
                           if (Widget const widget = resource<Widget>(outerOf(kind), bar)) {
                               EXPECT_TRUE(XtIsSensitive(widget)) << kind << ' ' << bar;
                           }
                   }
               }});
}

GUI_TEST(Enable, ADisabledControlTakesNoInput)
{
    runDialog(
        {.build = buildSimpleKinds, .look = [&](Shown dialog) {
             guiEnable(PushButton, 0);
             guiEnable(Check, 0);
             robot.click(outerOf(PushButton));
             robot.click(outerOf(Check));
             EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND) + recorder.count(GUI_EVENT_CHECK), 0);
             guiEnable(PushButton, 1);
             guiEnable(Check, 1);
             dialog.click("Button");
             dialog.click("Check");
             EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND) + recorder.count(GUI_EVENT_CHECK), 2);
         }});
}

GUI_TEST(Enable, ADisabledControlIsPassedOver)
{
    runDialog({.build = buildSimpleKinds,
               .fill = [] { guiEnable(PushButton, 0); },
               .look =
                   [](Shown dialog) {
                       guiSetFocus(Edit);
                       dialog.key(XK_Tab);
                       EXPECT_EQ(guiGetFocus(), Check);
                   }});
}
