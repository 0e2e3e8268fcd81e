// widget_text.cpp: the texts that widgets show, as plain strings.

#include <X11/Xatom.h>
#include <Xm/LabelGP.h>
#include <Xm/LabelP.h>
#include <Xm/MessageB.h>
#include <Xm/SelectioB.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

#include "widgets.h"

namespace kite::testing {

namespace {

// Reads a compound string resource; the toolkit hands out a copy.
std::string stringResource(Widget widget, const char* name)
{
    auto const string = resource<XmString>(widget, name);
    std::string text = toString(string);
    XmStringFree(string);
    return text;
}

}  // namespace

std::string toString(XmString string)
{
    std::string text;
    XmStringContext context = nullptr;
    if (!string || !XmStringInitContext(&context, string)) return text;
    unsigned int length = 0;
    XtPointer value = nullptr;
    XmStringComponentType type = XmSTRING_COMPONENT_UNKNOWN;
    while ((type = XmStringGetNextTriple(context, &length, &value)) != XmSTRING_COMPONENT_END) {
        if (type == XmSTRING_COMPONENT_TEXT || type == XmSTRING_COMPONENT_LOCALE_TEXT)
            text.append(static_cast<const char*>(value), length);
        else if (type == XmSTRING_COMPONENT_SEPARATOR)
            text += '\n';
        else if (type == XmSTRING_COMPONENT_TAB)
            text += '\t';
        XtFree(static_cast<char*>(value));
    }
    XmStringFreeContext(context);
    return text;
}

std::string labelOf(Widget widget)
{
    if (!XmIsLabel(widget) && !XmIsLabelGadget(widget)) return {};
    return stringResource(widget, XmNlabelString);
}

std::string messageOf(Widget box)
{
    if (XmIsMessageBox(box)) return stringResource(box, XmNmessageString);
    if (XmIsSelectionBox(box)) return stringResource(box, XmNselectionLabelString);
    return {};
}

std::string textOf(Widget widget)
{
    char* text = nullptr;
    if (XmIsText(widget)) text = XmTextGetString(widget);
    if (XmIsTextField(widget)) text = XmTextFieldGetString(widget);
    std::string copy = text ? text : "";
    XtFree(text);
    return copy;
}

std::string dialogTitleOf(Widget board)
{
    return stringResource(board, XmNdialogTitle);
}

std::string fontNameOf(Widget widget, const char* fontListResource)
{
    XmFontContext context = nullptr;
    auto* const list = resource<XmFontList>(widget, fontListResource);
    if (!list || !XmFontListInitFontContext(&context, list)) return {};
    XmFontListEntry const entry = XmFontListNextEntry(context);
    XmFontType type = XmFONT_IS_FONT;
    auto* const font =
        static_cast<XFontStruct*>(entry ? XmFontListEntryGetFont(entry, &type) : nullptr);
    XmFontListFreeFontContext(context);
    unsigned long name = 0;
    if (!font || type != XmFONT_IS_FONT || !XGetFontProperty(font, XA_FONT, &name)) return {};
    char* const text = XGetAtomName(XtDisplayOfObject(widget), name);
    std::string copy = text;
    XFree(text);
    return copy;
}

}  // namespace kite::testing
