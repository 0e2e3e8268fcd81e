// text_box.cpp: the box that asks for one line of text.

#include <Xm/SelectioB.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "boxes/misuse.h"
#include "boxes/modal_box.h"
#include "toolkit/colours.h"
#include "toolkit/displayable_text.h"
#include "toolkit/host_buffer.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/resources.h"
#include "toolkit/xt_string.h"

namespace kite {

namespace {

const ModalBox::Look kPromptLook{XmCreatePromptDialog, "v_promptbox", "", XmNselectionLabelString};

void prepareField(Widget box, Widget field, std::string text, int mostCharacters, bool isHidden)
{
    XmTextFieldSetString(field, text.data());
    XmTextFieldSetInsertionPosition(field, XmTextFieldGetLastPosition(field));
    const Pixel background = whitePixel(field);
    XtVaSetValues(field, XmNmarginWidth, 3, XmNmarginHeight, 1, XmNmaxLength, mostCharacters,
                  XmNshadowThickness, 2, XmNhighlightThickness, 0, XmNbackground, background,
                  XmNforeground, isHidden ? background : blackPixel(field), nullptr);
    showInsertionCursorWithFocus(field);
    XtVaSetValues(box, XmNinitialFocus, field, nullptr);
}

int ask(const char* prompt, char* buffer, int size, bool isHidden)
{
    const int mostCharacters = std::min(size - 1, kLongestEditableText);
    const std::string initial{buffer, strnlen(buffer, static_cast<std::size_t>(mostCharacters))};
    ModalBox box{kPromptLook, prompt};
    buffer[0] = '\0';
    if (!box.widget()) return GUI_FAILED;

    Widget const field = box.child(XmDIALOG_TEXT);
    Widget const ok = box.child(XmDIALOG_OK_BUTTON);
    Widget const cancel = box.child(XmDIALOG_CANCEL_BUTTON);
    box.removeParts({XmDIALOG_SEPARATOR, XmDIALOG_HELP_BUTTON});
    ModalBox::useDialogFont({box.child(XmDIALOG_PROMPT_LABEL), field, ok, cancel});
    prepareField(box.widget(), field, initial, mostCharacters, isHidden);
    box.answerOnPress(ok, 1);
    box.answerOnPress(cancel, 0);
    box.answerOnClose(0);
    box.finishButtons(ButtonWidth::NaturalCancel, {ok, cancel});
    if (box.run() != 1) return GUI_FAILED;

    const XtString text{XmTextFieldGetString(field)};
    return copyToBuffer(buffer, size, text.get());
}

}  // namespace

}  // namespace kite

int guiGetTextBox(const char* prompt, char* buffer, int size, int hidden)
{
    if (!kite::isUsableBuffer(buffer, size))
        return kite::reportMisuse("GetTextBox: invalid buffer");
    return kite::ask(prompt, buffer, size, hidden != 0);
}
