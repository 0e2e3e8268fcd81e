#include "boxes/file_box.h"

#include <Xm/FileSB.h>
#include <Xm/TextF.h>

#include <algorithm>

#include "frame/frame_fonts.h"
#include "frame/host_services.h"
#include "toolkit/argument_list.h"
#include "toolkit/colours.h"
#include "toolkit/host_buffer.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/xt_string.h"

namespace kite {

namespace {

constexpr int kWidth = 400;   // pixels
constexpr int kHeight = 300;  // pixels
constexpr std::size_t kLongestPath = 1023;
constexpr int kVerticalMargin = 4;  // around and between the rows: what they leave is for the lists
constexpr int kTextMargin = 2;

std::string directoryOf(const std::string& file)
{
    if (file.empty()) return {};
    const std::string path = orEmpty(kxFullName(file.c_str()));
    const int nameStart = std::max(0, kxLocNamePos(path.c_str()));
    return path.substr(0, static_cast<std::size_t>(nameStart));
}

// Parts get their font when they are made: lists of many files are laid out once.
void setFont(ArgumentList& arguments, Widget parent)
{
    XmFontList const font = frameFonts::of(parent, frameFonts::Use::Dialog);
    if (!font) return;
    for (const char* const kind : {XmNlabelFontList, XmNbuttonFontList, XmNtextFontList})
        arguments.set(kind, font);
}

Widget create(const FileBox::Content& content)
{
    Widget const parent = boxParent();
    if (!parent) return nullptr;
    const CompoundString title{content.title.c_str()};
    const CompoundString mask{(directoryOf(content.initialFile) + content.pattern).c_str()};
    ArgumentList arguments;
    arguments.set(XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL);
    arguments.set(XmNautoUnmanage, False);
    arguments.set(XmNdialogTitle, title.get());
    arguments.set(XmNdirMask, mask.get());
    arguments.set(XmNwidth, kWidth);
    arguments.set(XmNheight, kHeight);
    arguments.set(XmNresizePolicy, XmRESIZE_NONE);  // by the user alone, whatever is listed
    arguments.set(XmNmarginHeight, kVerticalMargin);
    setFont(arguments, parent);
    return XmCreateFileSelectionDialog(parent, const_cast<char*>("v_filebox"), arguments.data(),
                                       arguments.size());
}

void prepareList(Widget list)
{
    XtVaSetValues(list, XmNforeground, blackPixel(list), XmNbackground, whitePixel(list),
                  XmNshadowThickness, 2, nullptr);
}

void prepareText(Widget text)
{
    XtVaSetValues(text, XmNmarginHeight, kTextMargin, nullptr);
    showInsertionCursorWithFocus(text);
}

}  // namespace

std::string firstPattern(const std::string& filter)
{
    const std::size_t start = filter.find('|');
    if (start == std::string::npos) return "*";
    return filter.substr(start + 1, filter.find('|', start + 1) - start - 1);
}

FileBox::FileBox(const Content& content) : box_(create(content))
{
    if (widget()) prepare(content);
}

void FileBox::prepare(const Content& content)
{
    Widget const ok = child(XmDIALOG_OK_BUTTON);
    Widget const filter = child(XmDIALOG_APPLY_BUTTON);
    Widget const cancel = child(XmDIALOG_CANCEL_BUTTON);
    removeParts({XmDIALOG_HELP_BUTTON, XmDIALOG_SEPARATOR});
    for (const unsigned char list : {XmDIALOG_DIR_LIST, XmDIALOG_LIST}) prepareList(child(list));
    for (const unsigned char text : {XmDIALOG_FILTER_TEXT, XmDIALOG_TEXT}) prepareText(child(text));
    box_.finishButtons(ButtonWidth::NaturalCancel, {ok, filter, cancel});
    if (!content.initialFile.empty()) {
        std::string file = content.initialFile;
        Widget const text = child(XmDIALOG_TEXT);
        XmTextFieldSetString(text, file.data());
        XmTextFieldSetInsertionPosition(text, XmTextFieldGetLastPosition(text));
    }
    box_.answerOn(widget(), XmNokCallback, 1);
    box_.answerOn(widget(), XmNcancelCallback, 0);
    box_.answerOnClose(0);
}

std::optional<std::string> FileBox::ask()
{
    if (!widget() || box_.run() != 1 || !widget()) return std::nullopt;
    const XtString text{XmTextFieldGetString(child(XmDIALOG_TEXT))};
    return std::string{text.get()}.substr(0, kLongestPath);
}

}  // namespace kite
