// Fonts are loaded once, and stay loaded: widgets refer to them.

#include "connection.h"
#include "frame/frame_checks.h"
#include "server_resources.h"
#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

constexpr char kFonts[] = "FONT";

std::map<std::string, unsigned> resources()
{
    settle();
    return serverResources(toolkit::display());
}

void alternate(int id, int times)
{
    for (int i = 0; i < times; ++i) guiSetTextAtt(id, 0, i % 2 ? kCourier : kSmallest);
}

std::string fontOf(int id)
{
    return fontNameOf(innerOf(id), XmNfontList);
}

}  // namespace

GUI_TEST(TextAttReuse, AThousandCallsKeepWhatTwoKeep)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown) {
                   const unsigned before = resources()[kFonts];
                   for (const Kind kind : {Label, Edit, MultiLine, List, Tree, Combo, Spin}) {
                       SCOPED_TRACE(kind);
                       alternate(kind, 4);
                       const auto after = resources();
                       alternate(kind, 200);
                       EXPECT_EQ(resources(), after);
                   }
                   EXPECT_EQ(resources()[kFonts], before + 2);
                   alternate(Label, 1000);
                   EXPECT_EQ(resources()[kFonts], before + 2);
               }});
}

GUI_TEST(TextAttReuse, NamesOfNoFontKeepNothing)
{
    runDialog({.build = [] { guiLabel(1, 0, 0, 20, "x"); },
               .fill =
                   [] {
                       const unsigned before = resources()[kFonts];
                       for (int i = 0; i < 100; ++i)
                           guiSetTextAtt(1, 0, ("-nobody" + std::to_string(i)).c_str());
                       EXPECT_EQ(resources()[kFonts], before);
                   }});
}

GUI_TEST(TextAttReuse, OfOneDialogInTheNext)
{
    const auto show = [] {
        runDialog({.build = [] { guiLabel(1, 0, 0, 60, "Label"); },
                   .look =
                       [](Shown) {
                           alternate(1, 2);
                           settle();
                           EXPECT_EQ(fontOf(1), fontNameFor(kCourier));
                       }});
        return resources()[kFonts];
    };
    const unsigned after = show();
    for (int i = 0; i < 5; ++i) EXPECT_EQ(show(), after);
}

GUI_TEST(TextAttReuse, OfOneControlByAnother)
{
    runDialog({.build =
                   [] {
                       guiLabel(1, 0, 0, 60, "One");
                       guiLabel(2, 2, 0, 60, "Two");
                   },
               .look =
                   [](Shown) {
                       guiSetTextAtt(1, 0, kCourier);
                       const unsigned before = resources()[kFonts];
                       guiSetTextAtt(2, 0, kCourier);
                       EXPECT_EQ(resources()[kFonts], before);
                       guiSetTextAtt(1, 0, kSmallest);
                       XtDestroyWidget(outerOf(1));
                       settle();
                       EXPECT_EQ(fontOf(2), fontNameFor(kCourier)) << "nobody frees it";
                   }});
}

// A second display in one process has fonts of its own: the frame is opened anew.
GUI_STARTUP_TEST(TextAttReuse, EachDisplayHasItsOwn)
{
    for (int run = 0; run < 3; ++run)
        app.run([] {
            runDialog({.build = [] { guiLabel(1, 0, 0, 60, "Label"); },
                       .look =
                           [](Shown) {
                               const unsigned before = resources()[kFonts];
                               alternate(1, 10);
                               EXPECT_EQ(resources()[kFonts], before + 2);
                               EXPECT_EQ(fontOf(1), fontNameFor(kCourier));
                           }});
        });
}
