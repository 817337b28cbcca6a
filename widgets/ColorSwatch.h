// A button that shows a color and lets it be changed.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPointer>

class QColorDialog;

/// A click (or the space bar) opens a color panel, which changes the color while one chooses, opacity included.
/// The panel closes with the well.
class ColorSwatch : public QAbstractButton {
    Q_OBJECT
public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    /// Shows another color, in an open panel too, without telling anybody.
    void setColor(const QColor& color);

    QSize sizeHint() const override { return {48, 24}; }

signals:
    /// The user has chosen a color.
    void colorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void openPanel();

    QColor m_color = Qt::white;
    QPointer<QColorDialog> m_panel;
};
