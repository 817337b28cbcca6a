// A panel that takes the place of what is in the window.
#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

/// Covers a page of the window, or stands on a card in front of it, and closes it to mouse and keyboard until it is
/// answered: by its buttons, Return or Escape. No event loop is nested, and it goes away by itself. Commands ask
/// `openIn` whether they may run.
class Overlay : public QWidget {
    Q_OBJECT

public:
    enum class Form { Page, Card };
    /// `acceptText` is what Return does.
    Overlay(QWidget* page, const QString& title, const QString& acceptText, Form form = Form::Page);
    ~Overlay() override;

    /// The one that is open in the window; null for none.
    static Overlay* openIn(const QWidget& window);

    void open();
    void accept();
    void cancel(); // nothing when it has been answered already

signals:
    void accepted();
    /// The page is open again. Comes before `accepted`.
    void closed();

protected:
    /// Above the bar; of a card, below its title.
    QVBoxLayout& content() { return *m_content; }
    /// At the bottom, before the buttons.
    QBoxLayout& bar() { return *m_bar; }
    QPushButton& acceptButton() { return *m_accept; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool end();
    void dress();

    QWidget* m_page;
    QList<QPointer<QWidget>> m_covered;
    QPointer<QWidget> m_formerFocus;
    QWidget* m_card; // null for a page
    QWidget* m_row; // the whole bar
    QVBoxLayout* m_content;
    QBoxLayout* m_bar;
    QPushButton* m_accept;
    bool m_isOpen = false;
};
