// Which files the open panel offers and the views take.
#pragma once

class QMimeData;
class QString;

/// Patterns for a file dialog, "*.jpg *.JPG …": some dialogs tell upper and lower case apart.
QString pictureFilePatterns();

/// True when the extension is that of a picture and isn't PDF. Upper and lower case are told apart.
bool isAcceptablePictureFile(const QString& path);

/// The same for the view of generated effects: case doesn't matter, and PDF is one of them.
bool isAcceptableEffectPicture(const QString& path);

/// The path of the first dropped file; empty when there is none on this computer.
QString firstDroppedFile(const QMimeData&);
/// The path of the dropped file if there is exactly one; else empty.
QString onlyDroppedFile(const QMimeData&);
