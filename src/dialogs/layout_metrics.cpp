// layout_metrics.cpp: how much room controls take, for hosts that lay out their dialogs themselves.

#include "dialogs/layout_metrics.h"

#include <kitegui.h>

using namespace kite;

int guiGetDefRowStep(void)
{
    return layout::kRowStep;
}

int guiGetMaxCtrlHeight(void)
{
    return layout::kTallestControl;
}

int guiGetLabelHeight(void)
{
    return layout::kLabelHeight;
}

int guiGetEditHeight(void)
{
    return layout::kEditHeight;
}

int guiGetButtonHeight(void)
{
    return layout::kButtonHeight;
}

int guiGetCheckHeight(void)
{
    return layout::kCheckHeight;
}

int guiGetRadioHeight(void)
{
    return layout::kRadioHeight;
}

int guiGetChoiceHeight(void)
{
    return layout::kChoiceHeight;
}
