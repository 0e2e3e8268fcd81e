// What an operation changes is seen before the handler returns: the host may compute on.

#include "bmp_file.h"
#include "connection.h"
#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

// Nothing processes events between the change and the look at the screen.
void expectSeenAtOnce(int id, const std::function<void()>& change)
{
    SCOPED_TRACE(id);
    Widget const control = outerOf(id);
    ASSERT_TRUE(screen::waitUntilPainted(control));
    settle();
    const screen::Picture before = screen::grab(control);
    change();
    EXPECT_TRUE(waitUntil([&] { return screen::grab(control) != before; })) << "nothing is seen";
    XSync(XtDisplay(control), False);  // the server has drawn all that it was sent
    const screen::Picture atOnce = screen::grab(control);
    settle();
    EXPECT_TRUE(screen::waitUntilPainted(control));
    EXPECT_EQ(screen::grab(control) == atOnce, true) << "the rest is seen only later";
}

}  // namespace

GUI_TEST(SeenAtOnce, TextsOfEveryKind)
{
    runDialog({.build =
                   [] {
                       guiButton(99, 6, 80, 40, "First", 0);  // has the keyboard
                       buildSimpleKinds();
                   },
               .fill = makeOtherKinds,
               .look =
                   [](Shown dialog) {
                       ASSERT_TRUE(wm::waitForFocus(dialog.widget()));
                       for (const Kind kind :
                            {Label, Edit, PushButton, Check, Radio, MultiLine, Combo, Spin}) {
                           expectSeenAtOnce(kind, [&] { guiSetText(kind, "88"); });
                           expectSeenAtOnce(kind, [&] { guiSetText(kind, "8"); });
                       }
                   }});
}

GUI_TEST(SeenAtOnce, WithinAHandler)
{
    recorder.onEvent(GUI_EVENT_COMMAND, PushButton,
                     [] { expectSeenAtOnce(Label, [] { guiSetText(Label, "computing"); }); });
    runDialog({.build = buildSimpleKinds, .look = [&](Shown dialog) {
                   dialog.click("Button");
                   EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 1);
               }});
}

GUI_TEST(SeenAtOnce, Pictures)
{
    const std::string file =
        host.addFile(
                "red.bmp",
                BmpFile::direct(BmpFile::Colours(8, std::vector<BmpFile::Colour>(8, {255, 0, 0})))
                    .bytes())
            .string();
    runDialog({.build = buildSimpleKinds, .look = [&](Shown) {
                   for (const Kind kind : {Image, PushButton}) {
                       expectSeenAtOnce(kind, [&] { guiSetImage(kind, file.c_str()); });
                       expectSeenAtOnce(kind, [&] { guiSetImage(kind, ""); });
                   }
               }});
}
