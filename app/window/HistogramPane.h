// The histogram in the main window.
#pragma once

class QAction;

namespace Ui {
class MainWindow;
}

/// Lets it follow the picture view and the item's check mark, which is remembered. It is there in standard mode.
void installHistogram(Ui::MainWindow& ui, QAction& choice);
