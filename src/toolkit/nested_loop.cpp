#include "toolkit/nested_loop.h"

namespace kite {

namespace {

int running = 0;  // loops, one inside the other

}  // namespace

bool isProcessingEvents()
{
    return running > 0;
}

ProcessingEvents::ProcessingEvents()
{
    ++running;
}

ProcessingEvents::~ProcessingEvents()
{
    --running;
}

}  // namespace kite
