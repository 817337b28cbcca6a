// Where the files that come with the program lie.
#pragma once

#include <QString>
#include <QStringList>

/// The folders that are searched, best first: `share/lumivex` beside the folder of the running program (an
/// installed copy), then the resources folder of the source tree (a build that was not installed).
QStringList resourceFolders();

/// Searches other folders from now on; an empty list brings back the usual ones.
void setResourceFolders(const QStringList& folders);

/// The path of the resource file `name`.`type`, such as ("main_img", "jpg"), or empty when there is none. It may lie
/// in the folder itself or in one of its subfolders "pictures", "icons" and "help".
QString pathForResource(const QString& name, const QString& type);
