// The font of the boxes: the one of the status line.

#include "box_kinds.h"

#include <X11/Xatom.h>
#include <Xm/SelectioB.h>

using namespace kite::testing;

namespace {

const std::string kLargeFont = "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1";

// All that shows a text and stays.
std::vector<Widget> writtenParts(Widget box)
{
    std::vector<Widget> parts = buttonsOf(box);
    parts.push_back(messageLabelOf(box));
    if (XmIsSelectionBox(box)) parts.push_back(partOf(box, XmDIALOG_TEXT));
    return parts;
}

void expectFont(const std::string& font)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            for (Widget const part : writtenParts(box.widget()))
                EXPECT_EQ(fontNameOf(part), font) << XtName(part);
        });
}

}  // namespace

GUI_TEST(BoxFont, IsTheOneOfTheStatusLine)
{
    const std::string font = fontNameOf(app.find("v_sline"));
    EXPECT_EQ(font, "-Adobe-Helvetica-Medium-R-Normal--14-100-100-100-P-76-ISO8859-1");
    expectFont(font);
}

GUI_STARTUP_TEST(BoxFont, IsTheOneOfTheProfile)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] { expectFont("-Misc-Fixed-Medium-R-Normal--20-200-75-75-C-100-ISO8859-1"); });
}

GUI_STARTUP_TEST(BoxFont, IsTheToolkitsWhenThereIsNone)
{
    host.profile().setString("fnamm", "-no-such-font-*-*-*--14-*-*-*-*-*-*-*");
    app.run([] {
        for (const BoxKind& kind : allBoxes()) {
            const BareBox bare{kind};
            whileShown(kind, [&](Shown box) {
                for (Widget const part : buttonsOf(box.widget()))
                    EXPECT_EQ(fontNameOf(part), fontNameOf(bare.part(XmDIALOG_OK_BUTTON)));
                EXPECT_EQ(fontNameOf(messageLabelOf(box.widget())),
                          fontNameOf(messageLabelOf(bare.widget())));
            });
        }
    });
}
