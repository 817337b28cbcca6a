// Names of exported files, and the formats that go with them.
#pragma once

#include "platform/imageio/FileFormats.h"

#include <QString>

#include <vector>

/// All that this computer can write, PDF too, in the order of the table. Tries the encoders once, which takes a moment.
const std::vector<const FileFormat*>& exportableFormats();

/// By the extension, in capitals or not; null when there is none that can be written.
const FileFormat* formatOfFileName(const QString& name);

/// The name with the format's own extension instead of that of any other picture format. What is typed stays as it is;
/// an extension that the format has already does, too.
QString nameInFormat(const QString& name, const FileFormat& format);

/// Absolute: `name` in `folder`, where `~` is the home folder. A name may bring folders of its own.
QString exportTarget(const QString& folder, const QString& name);

/// Exact, with a rounded figure before it: "1.2 MB (1,234,567 bytes)".
QString fileSizeText(qint64 bytes);
