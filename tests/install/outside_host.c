/* outside_host.c: a host in C, with the host services of kitehost. It needs no display: it asks for what
   holds before guiInit. */

#include <kitegui.h>

#include <stdio.h>
#include <string.h>

static int failures = 0;

static void expect(int holds, const char* what)
{
    if (holds) return;
    printf("outside_host.c: not so: %s\n", what);
    failures++;
}

static int plugin(GuiHandler dispatch)
{
    return dispatch != NULL ? 7 : 0;
}

int main(void)
{
    expect(guiGetTopWnd() == NULL, "there is no top window");
    expect(guiUserBreak() == 0, "nobody has asked for a break");
    expect(guiStart(NULL) == -1, "there is no frame to start");
    expect(guiRunPlugin(plugin) == 7, "a plug-in gets a dispatcher, and its result comes back");
    expect(decorWindow == 666, "no window manager is known");
    expect(kxLocNamePos("/usr/bin/env") == 9, "kitehost answers");
    expect(kxAppDir()[strlen(kxAppDir()) - 1] == '/',
           "the application directory ends with a separator");
    puts(failures == 0 ? "outside_host.c: ok" : "outside_host.c: failed");
    return failures == 0 ? 0 : 1;
}
