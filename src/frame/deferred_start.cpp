#include "frame/deferred_start.h"

#include "frame/dispatcher.h"

namespace kite::deferred {

namespace {

struct {
    int handlersRunning = 0;     // kept by HandlerRunning
    GuiPlugin plugin = nullptr;  // set by guiStartPlugin, cleared when it is run
    int requestedAt = 0;         // how many handlers were running then; at least 1
} state;

bool hasReturned(int requestedAt)
{
    return state.handlersRunning < requestedAt;
}

int dispatch(int event, int id, int a, int b)
{
    raise(event, id, a, b);
    return 0;
}

}  // namespace

HandlerRunning::HandlerRunning()
{
    ++state.handlersRunning;
}

HandlerRunning::~HandlerRunning()
{
    --state.handlersRunning;
}

std::optional<int> runOne()
{
    if (!state.plugin || !hasReturned(state.requestedAt)) return std::nullopt;
    return guiRunPlugin(state.plugin);
}

}  // namespace kite::deferred

void guiStartPlugin(GuiPlugin plugin)
{
    auto& state = kite::deferred::state;
    state.plugin = plugin;
    state.requestedAt = state.handlersRunning > 0 ? state.handlersRunning : 1;
}

int guiRunPlugin(GuiPlugin plugin)
{
    kite::deferred::state.plugin = nullptr;
    return plugin ? plugin(kite::deferred::dispatch) : GUI_FAILED;
}
