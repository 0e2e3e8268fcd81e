// html_text.cpp: HTML written to a text widget.

#include <X11/IntrinsicP.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include "frame/log_file.h"
#include "output/html_scan.h"
#include "output/output_text.h"
#include "output/text_sink.h"
#include "toolkit/held_redisplay.h"

namespace kite::output {

namespace {

bool isText(Widget widget)
{
    return widget && !widget->core.being_destroyed && (XmIsText(widget) || XmIsTextField(widget));
}

void append(Widget text, const char* html)
{
    TextSink sink{text};
    scanHtml(html, sink);
    sink.applySettings();
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
