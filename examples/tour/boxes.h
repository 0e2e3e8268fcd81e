// boxes.h: one command for each of the standard boxes.

#pragma once

namespace tour {

void showInformation();
void showError();
void showTip();
void askOkCancel();
void askYesNo();
void askYesNoCancel();
void askText();
void askHiddenText();
void nestBoxes();
void showAbout();
void showOwnWindow();

}  // namespace tour
