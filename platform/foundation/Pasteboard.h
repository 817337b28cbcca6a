// Pictures on the clipboard.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <optional>

class QImage;

/// The general pasteboard: the desktop's clipboard, as far as pictures go. Main thread only.
class Pasteboard : public QObject {
    Q_OBJECT

public:
    static Pasteboard& generalPasteboard();

    /// True when the clipboard holds a picture in any form that can be read, or a file; this counts as TIFF offered.
    /// Quick: the clipboard's owner, often another program, is asked once after each change.
    bool offersTIFF() const;
    /// Asks the owner anew, for desktops that tell of changes only the program in front.
    void lookAgain();
    /// The picture file that was copied in a file manager; empty without exactly one, and with a picture itself.
    QString pictureFile() const;
    /// The picture as the bytes of a file, in the best form offered (no loss before loss); empty without one.
    QByteArray pictureData() const;

    /// Puts a picture on the clipboard: the bytes of a TIFF file, and `shown` for those who take other types.
    void setPicture(const QByteArray& tiff, const QImage& shown);

    /// Which of the offered types `pictureData` takes; empty when none is a picture.
    static QString bestPictureType(const QStringList& offeredTypes);

signals:
    /// Somebody, here or in another program, put something else on the clipboard.
    void changed();

private:
    Pasteboard();

    mutable std::optional<bool> m_offersTIFF; // nothing until somebody wants to know
};
