#include "box_kinds.h"

#include <Xm/MessageB.h>
#include <Xm/PushB.h>
#include <Xm/PushBG.h>
#include <Xm/SelectioB.h>

#include <algorithm>

namespace kite::testing {

namespace {

int info(const char* text)
{
    guiInfoBox(text);
    return 0;
}

int error(const char* text)
{
    guiErrorBox(text);
    return 0;
}

int promptForText(const char* text)
{
    char buffer[64] = "abc";
    return guiGetTextBox(text, buffer, sizeof buffer, 0);
}

bool isButton(Widget widget)
{
    return XmIsPushButton(widget) || XmIsPushButtonGadget(widget);
}

}  // namespace

const std::vector<BoxKind>& allBoxes()
{
    using enum BoxKind::Width;
    // clang-format off
    static const std::vector<BoxKind> boxes{
        {"guiInfoBox", "v_infobox", XmDIALOG_INFORMATION, XmCreateInformationDialog, info,
         {{"OK", 0}}, 0, 0, TripleOk},
        {"guiErrorBox", "v_errorbox", XmDIALOG_ERROR, XmCreateErrorDialog, error,
         {{"OK", 0}}, 0, 0, TripleOk},
        {"guiOkCancelBox", "v_askbox", XmDIALOG_QUESTION, XmCreateQuestionDialog, guiOkCancelBox,
         {{"OK", 1}, {"Cancel", 0}}, 0, 0, Cancel},
        {"guiYesNoBox", "v_askbox", XmDIALOG_QUESTION, XmCreateQuestionDialog, guiYesNoBox,
         {{"Yes", 1}, {"No", 0}}, 0, 0, TripleOk},
        {"guiYesNoCancelBox", "v_askbox", XmDIALOG_QUESTION, XmCreateQuestionDialog, guiYesNoCancelBox,
         {{"Yes", 1}, {"No", 0}, {"Cancel", -1}}, -1, -1, Cancel},
        {"guiGetTextBox", "v_promptbox", XmDIALOG_PROMPT, XmCreatePromptDialog, promptForText,
         {{"OK", 3}, {"Cancel", -1}}, -1, -1, Cancel},
    };
    // clang-format on
    return boxes;
}

std::vector<BoxKind> messageBoxes()
{
    std::vector<BoxKind> boxes = allBoxes();
    std::erase_if(boxes, [](const BoxKind& kind) { return kind.isPrompt(); });
    return boxes;
}

const BoxKind& boxKind(const std::string& call)
{
    return *std::ranges::find(allBoxes(), call, &BoxKind::call);
}

int whileShown(const BoxKind& kind, const std::function<void(Shown)>& look, const char* text)
{
    SCOPED_TRACE(kind.call);
    Script::instance().whenShown(kind.widget, [&](Shown box) {
        look(box);
        box.key(XK_Return);
    });
    return kind.ask(text);
}

Widget partOf(Widget box, unsigned char which)
{
    return XmIsMessageBox(box) ? XmMessageBoxGetChild(box, which)
                               : XmSelectionBoxGetChild(box, which);
}

Widget messageLabelOf(Widget box)
{
    return partOf(box, XmIsMessageBox(box) ? XmDIALOG_MESSAGE_LABEL : XmDIALOG_PROMPT_LABEL);
}

std::vector<Widget> buttonsOf(Widget box)
{
    std::vector<Widget> buttons;
    for (Widget const child : childrenOf(box))
        if (isButton(child) && isShown(child)) buttons.push_back(child);
    std::ranges::sort(buttons, {}, [](Widget button) { return rectOf(button).x; });
    return buttons;
}

int widgetCount()
{
    int count = 0;
    forEachWidget(toolkit::root(), [&](Widget) { ++count; });
    return count;
}

BareBox::BareBox(const BoxKind& kind)
    : box_(kind.create(findWidget("v_mainwnd"), const_cast<char*>("bare"), nullptr, 0))
{
}

BareBox::~BareBox()
{
    XtDestroyWidget(XtParent(box_));
}

}  // namespace kite::testing
