#include "text_kinds.h"

#include <Xm/TextF.h>

#include "operations/dialog_plan.h"

namespace kite::testing {

namespace {

enum Id { kEdit = 1, kText, kCombo };

Widget addTextField()
{
    return XtVaCreateManagedWidget("own", xmTextFieldWidgetClass, board(), XmNx, 10, XmNy, 150,
                                   nullptr);
}

}  // namespace

void withTexts(const std::function<void(Widget text)>& body)
{
    const auto use = [&](const char* kind, Widget text) {
        SCOPED_TRACE(kind);
        ASSERT_TRUE(text);
        body(text);
    };
    use("Output area", findWidget("v_text"));
    Widget own = nullptr;
    runDialog({.build =
                   [] {
                       guiEdit(kEdit, 0, 0, 80, 0, 0);
                       guiText(kText, 1, 4, 0, 80, 0);
                       guiCombo(kCombo, 6, 0, 80);
                   },
               .fill = [&] { own = addTextField(); },
               .look =
                   [&](Shown) {
                       use("edit", innerOf(kEdit));
                       use("multi-line text", innerOf(kText));
                       use("combo box", resource<Widget>(innerOf(kCombo), XmNtextField));
                       use("text field of the host's own", own);
                   }});
}

}  // namespace kite::testing
