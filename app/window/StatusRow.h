// What the window says at its bottom.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

class Document;
class QAbstractButton;
class QAction;
class QLabel;
class QProgressBar;

/// Tells what picture there is, for a while what has happened, and how far something is that can be cancelled.
class StatusRow : public QObject {
    Q_OBJECT

public:
    struct Parts {
        QWidget& window;
        QLabel& field;
        QProgressBar& bar;
        QAbstractButton& cancel;
    };

    /// Shows the document's messages, too.
    StatusRow(const Document& document, Parts parts);

    /// Tells the present state.
    void update();
    /// Where the result lies in the picture; empty for none. It is told when it is larger.
    void setResult(const CIRect& extent);
    void showMessage(const QString& text);
    /// Says that the file can't be read, and why if the document knows.
    void showReadFailure(const QString& path);
    /// The message stays for ten seconds, with a button for each action, one of which ends it.
    void offer(const QString& text, const QList<QAction*>& actions);
    void endOffer();
    /// From now on the window has the keyboard itself. `progress` answers 0 to 1, or 0 when nobody can tell.
    void showProgress(const QString& text, std::function<double()> progress);
    /// Who had the keyboard gets it back, unless it is elsewhere meanwhile. Nothing if nothing is shown.
    void endProgress();

private:
    void alert();
    void removeButtons();

    const Document& m_document;
    Parts m_parts;
    QTimer m_messageEnd, m_tick;
    CIRect m_result;
    QString m_progressText; // empty when nothing is shown
    QPointer<QWidget> m_formerFocus;
    QList<QPointer<QWidget>> m_offered; // the buttons
};
