#include "app/commands/FilledMenus.h"

#include "app/document/RecentFiles.h"
#include "app/document/UndoHistory.h"
#include "platform/foundation/UndoManager.h"

#include <QMenu>

namespace {

constexpr int kUndoLines = 20;

} // namespace

QAction& FilledMenus::add(QMenu& menu, QString title, const QString& hint, std::function<void()> run)
{
    QAction* item = menu.addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")));
    item->setStatusTip(hint);
    QObject::connect(item, &QAction::triggered, item, std::move(run));
    return *item;
}

void FilledMenus::fillRecent(QMenu& menu, const std::function<void(const QString& path)>& open)
{
    menu.clear();
    const QStringList paths = RecentFiles::list(), titles = RecentFiles::titles(paths);
    for (qsizetype i = 0; i < paths.size(); ++i)
        add(menu, titles[i], paths[i], [open, path = paths[i]] { open(path); });
    if (paths.isEmpty())
        menu.addAction(tr("No Pictures Yet"))->setEnabled(false);
    menu.addSeparator();
    QAction* clear = menu.addAction(tr("&Clear Menu"));
    clear->setEnabled(!paths.isEmpty());
    QObject::connect(clear, &QAction::triggered, clear, [] { RecentFiles::clear(); });
}

void FilledMenus::fillUndoHistory(QMenu& menu, const UndoManager& undo, const std::function<void(int moves)>& go)
{
    menu.clear();
    for (const UndoHistoryLine& line : undoHistoryLines(undo.undoActionNames(), undo.redoActionNames(), kUndoLines)) {
        QString title = line.name.isEmpty() ? tr("Change") : line.name;
        if (line.steps == 0)
            title = tr("Before All Changes");
        else if (line.steps > 1)
            title = tr("%1 (%2 times)").arg(title).arg(line.steps);
        const QString hint = line.moves > 0 ? tr("Makes the changes up to this one again")
            : line.moves < 0                ? tr("Takes back what came after")
                                            : tr("The present state");
        QAction& item = add(menu, title, hint, [go, moves = line.moves] { go(moves); });
        item.setCheckable(true);
        item.setChecked(line.moves == 0);
        if (line.moves > 0) { // undone
            QFont font = menu.font();
            font.setItalic(true);
            item.setFont(font);
        }
    }
}
