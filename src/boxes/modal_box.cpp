#include "boxes/modal_box.h"

#include <Xm/FileSB.h>
#include <Xm/MessageB.h>
#include <Xm/SelectioB.h>

#include <string>

#include "frame/app_info.h"
#include "frame/frame_fonts.h"
#include "toolkit/nested_loop.h"
#include "toolkit/painted_labels.h"
#include "toolkit/resources.h"
#include "toolkit/shells.h"

namespace kite {

namespace {

Widget create(const ModalBox::Look& look, const char* text)
{
    Widget const parent = boxParent();
    if (!parent) return nullptr;
    const CompoundString title{(std::string{appTitle()} + look.titleSuffix).c_str()};
    const CompoundString message{text};
    Arg arguments[5];
    XtSetArg(arguments[0], XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL);
    XtSetArg(arguments[1], XmNnoResize, True);
    XtSetArg(arguments[2], XmNdialogTitle, title.get());
    XtSetArg(arguments[3], look.textResource, message.get());
    XtSetArg(arguments[4], XmNautoUnmanage, False);  // it goes when it is answered, not before
    return look.create(parent, const_cast<char*>(look.widgetName), arguments, 5);
}

}  // namespace

ModalBox::ModalBox(const Look& look, const char* text) : ModalBox(create(look, text)) {}

ModalBox::ModalBox(Widget box) : box_(box)
{
    if (box) freePaintedLabelsWith(XtParent(box));
}

ModalBox::~ModalBox()
{
    Widget const box = box_.get();
    if (!box) return;
    XtUnmanageChild(box);
    destroyShell(XtParent(box));
}

Widget ModalBox::child(unsigned char which) const
{
    Widget const box = box_.get();
    if (XmIsMessageBox(box)) return XmMessageBoxGetChild(box, which);
    if (XmIsFileSelectionBox(box)) return XmFileSelectionBoxGetChild(box, which);
    return XmSelectionBoxGetChild(box, which);
}

void ModalBox::removeParts(std::initializer_list<unsigned char> parts)
{
    for (const unsigned char part : parts)
        if (Widget const widget = child(part)) XtUnmanageChild(widget);
}

void ModalBox::useDialogFont(std::initializer_list<Widget> parts)
{
    for (Widget const part : parts) frameFonts::apply(part, frameFonts::Use::Dialog);
}

void ModalBox::prepareButton(Widget button)
{
    XtVaSetValues(button, XmNrecomputeSize, False, XmNshadowThickness, 2, XmNhighlightThickness, 1,
                  XmNdefaultButtonShadowThickness, 0, XmNshowAsDefault, 0, nullptr);
}

void ModalBox::finishButtons(ButtonWidth width, const std::vector<Widget>& buttons)
{
    const bool isTriple = width == ButtonWidth::TripleOk;
    const auto natural = resource<Dimension>(
        child(isTriple ? XmDIALOG_OK_BUTTON : XmDIALOG_CANCEL_BUTTON), XmNwidth);
    for (Widget const button : buttons) {
        prepareButton(button);
        // On its own: in one call the toolkit takes what the borders have lost off the new width.
        XtVaSetValues(button, XmNwidth, isTriple ? natural * 3 : natural, nullptr);
    }
}

ModalBox::Answer* ModalBox::newAnswer(int value)
{
    Answer* const answer = &answers_[answerCount_++];
    *answer = {&result_, value};
    return answer;
}

void ModalBox::answered(Widget, XtPointer answer, XtPointer)
{
    const auto* given = static_cast<Answer*>(answer);
    *given->result = given->value;
}

void ModalBox::answerOnPress(Widget button, int answer)
{
    answerOn(button, XmNactivateCallback, answer);
}

void ModalBox::answerOn(Widget widget, const char* callback, int answer)
{
    XtAddCallback(widget, const_cast<char*>(callback), answered, newAnswer(answer));
}

void ModalBox::answerOnClose(int answer)
{
    whenClosed_ = answer;
    onCloseRequest(XtParent(box_.get()), answered, newAnswer(answer));
}

int ModalBox::run()
{
    Widget const box = box_.get();
    if (!box) return whenClosed_;
    if (!shown_) {
        shown_.emplace(box);
        XtManageChild(box);
    }
    result_ = kPending;
    processEventsWhile(box, [this] { return result_ == kPending && box_; });
    return result_ == kPending ? whenClosed_ : result_;
}

}  // namespace kite
