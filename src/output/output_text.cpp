#include "output/output_text.h"

#include <X11/IntrinsicP.h>

#include "frame/main_frame.h"
#include "toolkit/held_redisplay.h"

namespace kite::output {

Widget text()
{
    Widget const text = frame::widgets().text;
    return text && !text->core.being_destroyed ? text : nullptr;
}

Widget textToRead()
{
    paintOverdueText();
    return text();
}

}  // namespace kite::output
