// Shows the help book.
#pragma once

#include <QTextBrowser>

class HelpWindow : public QTextBrowser {
    Q_OBJECT

public:
    /// The path of the book's page "main.html", or empty when the program has no help book.
    static QString firstPage();
    /// Opens the book at its first page in a window beside `mainWindow`, or brings an open one to the front.
    static void show(QWidget& mainWindow);

private:
    explicit HelpWindow(QWidget* parent);
};
