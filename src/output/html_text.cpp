// html_text.cpp: HTML written to a text widget.

#include <X11/IntrinsicP.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <string>

#include "frame/log_file.h"
#include "output/html_scan.h"
#include "output/output_text.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/resources.h"
#include "toolkit/text_positions.h"

namespace kite::output {

namespace {

class TextSink : public HtmlSink {
public:
    explicit TextSink(Widget text) : text_(text) {}

    long lastPosition() override { return XmTextGetLastPosition(text_); }

    long insert(long position, std::string_view piece) override
    {
        XmTextInsert(text_, position, std::string{piece}.data());
        return positionsIn(piece);
    }

    void setInsertionPoint(long position) override { XmTextSetInsertionPosition(text_, position); }
    void setEditable(bool isEditable) override { XmTextSetEditable(text_, isEditable); }
    void setWordWrap(bool wraps) override { set(XmNwordWrap, wraps); }
    void setHorizontalScroll(bool scrolls) override { set(XmNscrollHorizontal, scrolls); }

private:
    // A text that is set anew is cleared, and painted when the event loop comes to it: not for nothing,
    // and not while painting waits.
    void set(const char* name, bool value)
    {
        if ((resource<Boolean>(text_, name) != False) == value) return;
        paintHeldText();
        XtVaSetValues(text_, const_cast<char*>(name), value ? True : False, nullptr);
    }

    Widget text_;
};

bool isText(Widget widget)
{
    return widget && !widget->core.being_destroyed && (XmIsText(widget) || XmIsTextField(widget));
}

void append(Widget text, const char* html)
{
    TextSink sink{text};
    scanHtml(html, sink);
}

}  // namespace

}  // namespace kite::output

using namespace kite;

void guiHTML2Rich(GuiWidget text, const char* html)
{
    if (!html || !output::isText(text)) return;
    if (XmIsTextField(text)) {
        output::append(text, html);
        return;
    }
    const HeldRedisplay held{text};
    output::append(text, html);
}

void guiWriteHTML(const char* html)
{
    Widget const area = output::text();
    if (!area || !html) return;
    guiHTML2Rich(area, html);
    outputLog().write(html, 0);
}
