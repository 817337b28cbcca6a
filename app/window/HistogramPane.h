// The histogram in the main window.
#pragma once

namespace Ui {
class MainWindow;
}

/// Lets it follow the picture view and the menu's choice, which is remembered. It is there in standard mode.
void installHistogram(Ui::MainWindow& ui);
