#include "output/output_text.h"

#include "frame/main_frame.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/shells.h"

namespace kite::output {

Widget text()
{
    Widget const text = frame::widgets().text;
    return text && !isGoing(text) ? text : nullptr;
}

Widget textToRead()
{
    paintOverdueText();
    return text();
}

}  // namespace kite::output
