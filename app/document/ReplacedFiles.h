// Files that are overwritten although the user said no.
#pragma once

#include <QString>

#include <optional>

struct ReplacedFile {
    QString path; // where it is kept
    bool isInTrash;
};

/// Puts the file into the desktop's trash, which knows its place, or, where there is no trash, into a folder of `home`.
/// A copy stays where it was. Nothing when there is no room for it anywhere. Takes as long as copying does.
std::optional<ReplacedFile> keepReplacedFile(const QString& file, const QString& home);

/// Removes from the folder of `home` what has been there for 30 days.
void forgetReplacedFiles(const QString& home);
