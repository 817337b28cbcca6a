// The files that were opened or saved last.
#pragma once

#include <QStringList>

namespace RecentFiles {

inline constexpr int kMost = 10;

/// Full paths, the latest first; those that are gone are left out.
QStringList list();
void remember(const QString& path);
void clear();

/// What a menu shows: the names, with as much of the folders as tells equal names apart.
QStringList titles(const QStringList& paths);

} // namespace RecentFiles
