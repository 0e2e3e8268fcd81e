/* hello: the smallest useful host. It greets, answers F1 and asks before it leaves. */

#include <kitegui.h>

static int handle(int event, int id, int a, int b)
{
    (void)a;
    (void)b;
    if (event == GUI_EVENT_INIT && id == 0) guiSetStatusLine("Hello. F1: who wrote this?");
    if (event != GUI_EVENT_COMMAND) return 0;
    if (id == GUI_COMMAND_F1) guiInfoBox("You did,\nin less than 40 lines.");
    if (id == GUI_COMMAND_CLOSE && guiYesNoBox("Leave?") == GUI_YES) guiClose(0);
    return 0;
}

int main(void)
{
    guiSetAppInfo("Hello", "hello");
    guiInit(handle);
    return guiStart(handle);
}
