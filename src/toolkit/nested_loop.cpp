#include "toolkit/nested_loop.h"

namespace kite {

namespace {

int running = 0;  // loops, one inside the other
int begun = 0;

}  // namespace

bool isProcessingEvents()
{
    return running > 0;
}

int loopsBegun()
{
    return begun;
}

ProcessingEvents::ProcessingEvents()
{
    ++begun;
    ++running;
}

ProcessingEvents::~ProcessingEvents()
{
    --running;
}

}  // namespace kite
