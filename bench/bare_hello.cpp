// bare_hello: the frame of `hello` in bare Motif, for the memory comparison.

#include "bare_frame.h"

int main()
{
    const bench::BareFrame frame = bench::openBareFrame();
    XtAppMainLoop(frame.application);
}
