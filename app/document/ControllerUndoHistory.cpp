#include "app/Controller.h"
#include "app/document/UndoHistory.h"
#include "app/window/MainWindow.h"
#include "ui_MainWindow.h"

namespace {

constexpr int kLines = 20;

} // namespace

void Controller::goInUndoHistory(int moves)
{
    if (!m_document.isIdle() || moves == 0)
        return;
    if (moves < 0)
        m_undoManager.undo();
    else
        m_undoManager.redo();
    updateView();
    updateLayout();
    m_document.whenIdle([this, rest = moves < 0 ? moves + 1 : moves - 1] { goInUndoHistory(rest); });
}

void Controller::fillUndoHistoryMenu(QMenu& menu)
{
    menu.clear();
    for (const UndoHistoryLine& line :
        undoHistoryLines(m_undoManager.undoActionNames(), m_undoManager.redoActionNames(), kLines)) {
        QString title = line.name.isEmpty() ? tr("Change") : line.name;
        if (line.steps == 0)
            title = tr("Before All Changes");
        else if (line.steps > 1)
            title = tr("%1 (%2 times)").arg(title).arg(line.steps);
        QAction* item = menu.addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")));
        item->setCheckable(true);
        item->setChecked(line.moves == 0);
        if (line.moves > 0) {
            QFont font = menu.font();
            font.setItalic(true);
            item->setFont(font);
            item->setStatusTip(tr("Makes the changes up to this one again"));
        } else if (line.moves < 0) {
            item->setStatusTip(tr("Takes back what came after"));
        } else {
            item->setStatusTip(tr("The present state"));
        }
        connect(item, &QAction::triggered, this, [this, moves = line.moves] { goInUndoHistory(moves); });
    }
}
