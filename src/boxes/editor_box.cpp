// editor_box.cpp: a box in which the user edits a text of several lines.

#include <Xm/PushB.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include <cstring>

#include "boxes/editor_buffer.h"
#include "boxes/empty_box.h"
#include "boxes/misuse.h"
#include "boxes/modal_box.h"
#include "frame/frame_fonts.h"
#include "frame/top_window.h"
#include "toolkit/colours.h"
#include "toolkit/host_buffer.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/resources.h"
#include "toolkit/scroll_bars.h"
#include "toolkit/shells.h"
#include "toolkit/text_copy.h"

namespace kite {

namespace {

constexpr int kWidth = 550;   // pixels
constexpr int kHeight = 400;  // pixels

EditorBuffer& buffer = neverDestroyed<EditorBuffer>();

struct Parts {
    Widget scrolled;
    Widget text;
    Widget ok;
    Widget cancel;
};

Widget createText(Widget scrolled)
{
    Widget const text = XtVaCreateManagedWidget(
        "v_mltext", xmTextWidgetClass, scrolled, XmNeditMode, XmMULTI_LINE_EDIT, XmNvalue,
        buffer.hasText() ? buffer.text() : "", XmNshadowThickness, 2, XmNhighlightThickness, 0,
        XmNmarginWidth, 3, XmNmarginHeight, 1, XmNforeground, blackPixel(scrolled), XmNbackground,
        whitePixel(scrolled), nullptr);
    frameFonts::apply(text, frameFonts::Use::Output);
    showInsertionCursorWithFocus(text);
    return text;
}

Widget createButton(Widget box, const char* name, const char* text)
{
    const CompoundString label{text};
    Widget const button = XtVaCreateManagedWidget(
        name, xmPushButtonWidgetClass, box, XmNlabelString, label.get(), XmNshadowThickness, 2,
        XmNhighlightThickness, 1, XmNdefaultButtonShadowThickness, 0, nullptr);
    frameFonts::apply(button, frameFonts::Use::Dialog);
    XtVaSetValues(button, XmNrecomputeSize, False, nullptr);
    return button;
}

// The toolkit gives the buttons of a board a shadow, and room for it, once one of them is the default button. At the
// end of this scope a button is as before.
class WithoutDefaultShadow {
public:
    explicit WithoutDefaultShadow(Widget button)
        : button_(button), width_(resource<Dimension>(button, XmNwidth)),
          height_(resource<Dimension>(button, XmNheight))
    {
    }
    ~WithoutDefaultShadow()
    {
        XtVaSetValues(button_, XmNdefaultButtonShadowThickness, 0, nullptr);
        XtVaSetValues(button_, XmNwidth, width_, XmNheight, height_, nullptr);
    }
    WithoutDefaultShadow(const WithoutDefaultShadow&) = delete;
    WithoutDefaultShadow& operator=(const WithoutDefaultShadow&) = delete;

private:
    Widget button_;
    Dimension width_;
    Dimension height_;
};

Parts createParts(Widget box)
{
    Parts parts{};
    parts.scrolled = XtVaCreateManagedWidget(
        "v_scroll", xmScrolledWindowWidgetClass, box, XmNscrollingPolicy, XmAPPLICATION_DEFINED,
        XmNshadowThickness, 0, XmNhighlightThickness, 1, XmNspacing, 0, nullptr);
    parts.text = createText(parts.scrolled);
    adjustScrollBars(parts.scrolled, box);
    parts.ok = createButton(box, "v_okpbtn", "OK");
    parts.cancel = createButton(box, "v_clpbtn", "Cancel");
    const WithoutDefaultShadow ok{parts.ok}, cancel{parts.cancel};
    XtVaSetValues(box, XmNinitialFocus, parts.scrolled, XmNdefaultButton, parts.ok, XmNcancelButton,
                  parts.cancel, nullptr);
    return parts;
}

// The buttons are equally wide, centred, with the width of one between them.
void layOut(Widget box, const Parts& parts)
{
    const int width = resource<Dimension>(box, XmNwidth);
    const int height = resource<Dimension>(box, XmNheight);
    const int marginWidth = resource<Dimension>(box, XmNmarginWidth);
    const int marginHeight = resource<Dimension>(box, XmNmarginHeight);
    const int buttonWidth = resource<Dimension>(parts.cancel, XmNwidth);
    const int buttonHeight = resource<Dimension>(parts.cancel, XmNheight);
    XtVaSetValues(parts.scrolled, XmNx, marginWidth, XmNy, marginHeight, XmNwidth,
                  width - 2 * marginWidth, XmNheight,
                  height - 2 * marginHeight - buttonHeight - marginHeight / 2, nullptr);
    const int left = (width - 3 * buttonWidth) / 2;
    const int top = height - marginHeight - buttonHeight;
    XtVaSetValues(parts.ok, XmNx, left, XmNy, top, XmNwidth, buttonWidth, nullptr);
    XtVaSetValues(parts.cancel, XmNx, left + 2 * buttonWidth, XmNy, top, nullptr);
}

// The frame's shell when no window is the top one.
Widget editorParent()
{
    return topWindow() || !mainWindow() ? boxParent() : shellOf(mainWindow());
}

// The text as the user leaves it goes back into the buffer.
bool keep(Widget text)
{
    const TextCopy edited = copyOfText(text);
    const auto refuse = [](int) { return false; };
    if (!edited.bytes) return refuse(reportMisuse("EditBox: cannot retrieve text"));
    return buffer.assign(edited.view()) || refuse(reportMisuse("EditBox: out of memory"));
}

// True when the user is done; false when the user gives up, or the box has gone.
bool letUserEdit(ModalBox& box, Widget text)
{
    while (box.run() != 1)
        if (!box.widget() || guiYesNoBox("Exit the editor?")) return false;
    return keep(text);
}

bool edit(Widget board)
{
    ModalBox box{board};
    XtVaSetValues(board, XmNwidth, kWidth, XmNheight, kHeight, XmNresizePolicy, XmRESIZE_NONE,
                  nullptr);
    const Parts parts = createParts(board);
    buffer.reset();
    layOut(board, parts);
    box.answerOnPress(parts.ok, 1);
    box.answerOnPress(parts.cancel, 0);
    box.answerOnClose(0);
    return letUserEdit(box, parts.text);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiEditorReset(void)
{
    buffer.reset();
    return 0;
}

int guiEditorPutLine(const char* line)
{
    if (!line) return GUI_FAILED;
    const std::string_view bytes{line};
    if (!buffer.append(bytes)) return reportMisuse("EditorPutLine: out of memory");
    return static_cast<int>(bytes.size());
}

// Handlers may fill the buffer anew while the box is open: what the user has edited is what counts then.
int guiEditorBox(const char* title)
{
    Widget const board = createEmptyBox(editorParent(), "v_editorshell", "v_editorbox",
                                        title && *title ? title : "Editor");
    if (!board) return GUI_FAILED;
    const int lines = edit(board) ? buffer.lines() : GUI_FAILED;
    if (lines <= 0) buffer.reset();
    return lines;
}

int guiEditorGetLine(char* line, int size)
{
    if (!isUsableBuffer(line, size)) return reportMisuse("EditorGetLine: invalid buffer");
    line[0] = '\0';
    return buffer.hasText() ? buffer.read(line, size) : GUI_FAILED;
}
