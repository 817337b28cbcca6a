#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "ui_MainWindow.h"

void Controller::compare(bool held) { ciView->setShowsOriginal(held && filerMode() == Standard && currentFilter); }

void Controller::splitView()
{
    ciView->setSplit(ui.actionSplitView->isChecked() && filerMode() == Standard && currentFilter);
}
