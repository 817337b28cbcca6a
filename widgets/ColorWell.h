// A small field of color that opens the color panel.
#pragma once

#include <QColorDialog>
#include <QPointer>
#include <QPushButton>

/// Shows its color, transparency over squares. While the panel is open, what is picked there is tried: shown here and
/// announced by `colorTried`. Only accepting it makes it the color. Choosing another color makes one visible that
/// nothing is seen of, unless its alpha is chosen, too.
class ColorWell : public QPushButton {
    Q_OBJECT
public:
    explicit ColorWell(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    /// Says nothing.
    void setColor(const QColor& color);
    /// As if the user had picked it.
    void pick(const QColor& color);

    /// The open panel, or null.
    QColorDialog* panel() const { return m_panel; }
    QSize sizeHint() const override { return {38, 24}; }

public slots:
    void openPanel();

signals:
    /// Not the color yet; the old one is tried last when the user cancels.
    void colorTried(const QColor& color);
    void colorPicked(const QColor& color);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void tryColor(const QColor& color);
    void makeVisible();

    QColor m_color = Qt::black;
    QColor m_shown = Qt::black;
    QPointer<QColorDialog> m_panel;
    bool m_makesVisible = false; // a color that is chosen without an alpha
};
