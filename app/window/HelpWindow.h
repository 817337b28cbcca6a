// Shows the help book.
#pragma once

#include "app/window/HelpPage.h"

#include <QWidget>

class QListWidget;
class QToolButton;

/// A list of the book's pages, the page that is read, and the way back. Follows the program's look.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// The path of the book's page "main.html", or empty when the program has no help book.
    static QString firstPage();
    /// Opens the book at its first page in a window beside `mainWindow`, or brings an open one to the front. Nothing
    /// without a book.
    static void show(QWidget& mainWindow);

private:
    explicit HelpWindow(QWidget& mainWindow);

    QToolButton* addButton(const QString& icon, const QString& name, const QKeySequence& key);
    void addLayout();
    void fillContents();
    void pageChanged(const QUrl& address);

    HelpPage* m_page;
    QListWidget* m_contents;
    QToolButton* m_back;
    QToolButton* m_forward;
};
