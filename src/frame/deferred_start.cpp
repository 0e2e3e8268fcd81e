#include "frame/deferred_start.h"

#include <algorithm>
#include <utility>

#include "frame/dispatcher.h"

namespace kite::deferred {

namespace {

template <typename Function>
struct Request {
    Function function = nullptr;
    int madeAt = 0;  // how many handlers were running then; at least 1
};

struct {
    int handlersRunning = 0;    // kept by HandlerRunning
    Request<GuiPlugin> plugin;  // set by guiStartPlugin, cleared when it is run
    Request<int (*)()> dialog;  // set by startDialog, cleared when it is run or withdrawn
} state;

template <typename Function>
Request<Function> requestNow(Function function)
{
    return {function, std::max(state.handlersRunning, 1)};
}

template <typename Function>
bool isDue(const Request<Function>& request)
{
    return request.function && state.handlersRunning < request.madeAt;
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

void startDialog(int (*run)())
{
    state.dialog = requestNow(run);
}

bool isDialogRequested()
{
    return state.dialog.function != nullptr;
}

void withdrawDialog()
{
    state.dialog = {};
}

std::optional<int> runOne()
{
    if (isDue(state.dialog)) return std::exchange(state.dialog, {}).function();
    if (isDue(state.plugin)) return guiRunPlugin(state.plugin.function);
    return std::nullopt;
}

}  // namespace kite::deferred

using namespace kite;

void guiStartPlugin(GuiPlugin plugin)
{
    deferred::state.plugin = deferred::requestNow(plugin);
}

int guiRunPlugin(GuiPlugin plugin)
{
    deferred::state.plugin = {};
    return plugin ? plugin(deferred::dispatch) : GUI_FAILED;
}
