// message_boxes.cpp: the boxes that show a message and wait for one of their buttons.

#include <Xm/MessageB.h>
#include <Xm/PushB.h>
#include <kitegui.h>

#include <optional>
#include <vector>

#include "boxes/modal_box.h"

namespace kite {

namespace {

struct Button {
    const char* label;  // null: the toolkit's own, which follows the user's locale
    int answer;
};

struct MessageBox {
    ModalBox::Look look;
    Button ok;
    std::optional<Button> extra;  // stands between OK and Cancel
    std::optional<Button> cancel;
    ButtonWidth width;
    int whenClosed;
    int whenNotCreated;
};

const ModalBox::Look kAskLook{XmCreateQuestionDialog, "v_askbox", "", XmNmessageString};
constexpr auto kNone = std::nullopt;

// clang-format off
const MessageBox kInfoBox{
    {XmCreateInformationDialog, "v_infobox", "", XmNmessageString},
    Button{nullptr, 0}, kNone, kNone,
    ButtonWidth::TripleOk, 0, 0};

const MessageBox kErrorBox{
    {XmCreateErrorDialog, "v_errorbox", " Error", XmNmessageString},
    Button{nullptr, 0}, kNone, kNone,
    ButtonWidth::TripleOk, 0, 0};

const MessageBox kOkCancelBox{
    kAskLook,
    Button{nullptr, GUI_OK}, kNone, Button{nullptr, GUI_NO},
    ButtonWidth::NaturalCancel, GUI_NO, GUI_NO};

const MessageBox kYesNoBox{
    kAskLook,
    Button{"Yes", GUI_YES}, kNone, Button{"No", GUI_NO},
    ButtonWidth::TripleOk, GUI_NO, GUI_NO};

const MessageBox kYesNoCancelBox{
    kAskLook,
    Button{"Yes", GUI_YES}, Button{"No", GUI_NO}, Button{nullptr, GUI_CANCEL},
    ButtonWidth::NaturalCancel, GUI_CANCEL, GUI_CANCEL};
// clang-format on

void prepareButton(ModalBox& box, Widget widget, const Button& button)
{
    if (button.label) {
        const CompoundString label{button.label};
        XtVaSetValues(widget, XmNlabelString, label.get(), nullptr);
    }
    ModalBox::useDialogFont({widget});
    box.answerOnPress(widget, button.answer);
}

void prepareButtons(ModalBox& box, const MessageBox& kind)
{
    std::vector<Widget> buttons{box.child(XmDIALOG_OK_BUTTON)};
    prepareButton(box, buttons.back(), kind.ok);
    if (kind.extra) {
        buttons.push_back(
            XtVaCreateManagedWidget("v_nopbtn", xmPushButtonWidgetClass, box.widget(), nullptr));
        prepareButton(box, buttons.back(), *kind.extra);
    }
    if (kind.cancel) {
        buttons.push_back(box.child(XmDIALOG_CANCEL_BUTTON));
        prepareButton(box, buttons.back(), *kind.cancel);
    } else {
        // Escape presses this button also when nobody sees it.
        box.removeParts({XmDIALOG_CANCEL_BUTTON});
        box.answerOnPress(box.child(XmDIALOG_CANCEL_BUTTON), kind.ok.answer);
    }
    box.finishButtons(kind.width, buttons);
}

int show(const MessageBox& kind, const char* message)
{
    ModalBox box{kind.look, message};
    if (!box.widget()) return kind.whenNotCreated;
    box.removeParts({XmDIALOG_SEPARATOR, XmDIALOG_HELP_BUTTON});
    ModalBox::useDialogFont({box.child(XmDIALOG_MESSAGE_LABEL)});
    prepareButtons(box, kind);
    box.answerOnClose(kind.whenClosed);
    return box.run();
}

}  // namespace

}  // namespace kite

void guiInfoBox(const char* message)
{
    kite::show(kite::kInfoBox, message);
}

void guiErrorBox(const char* message)
{
    kite::show(kite::kErrorBox, message);
}

int guiOkCancelBox(const char* message)
{
    return kite::show(kite::kOkCancelBox, message);
}

int guiYesNoBox(const char* message)
{
    return kite::show(kite::kYesNoBox, message);
}

int guiYesNoCancelBox(const char* message)
{
    return kite::show(kite::kYesNoCancelBox, message);
}
