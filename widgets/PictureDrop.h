// How the views take dragged picture files.
#pragma once

class QDragEnterEvent;
class QDropEvent;
class QString;

/// Takes the drag as a copy if it can be one and the file is wanted; else refuses it. `path` is empty for no file.
bool takeDrag(QDragEnterEvent& event, const QString& path, bool (*isWanted)(const QString& path));

/// Takes the drop as a copy and answers its first file. Empty for none, and with a picture itself among the data: then
/// the drag came from a program that means something else by the file.
QString takeDroppedPicture(QDropEvent& event);
