// A page of the help book.
#pragma once

#include <QTextBrowser>

/// Reads pages from files. A page has the address of the English one, which is what links and pictures go by; it is
/// read from the folder beside that is named after the window's language ("de"), if it is there. In a page,
/// `{actionOpen}` stands for the keys of that action of the main window, so that the book never tells others than the
/// menus do. A picture `name.jpg` that has a twin `name-dark.jpg` is shown by the one that fits the look.
class HelpPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpPage(QWidget& mainWindow);

    QVariant loadResource(int type, const QUrl& name) override;

    /// The page's text with keys in the places of actions; a place whose action has no key is left empty.
    static QString withKeys(QString page, const QWidget& mainWindow);

private:
    void dress();

    QWidget& m_mainWindow;
};
