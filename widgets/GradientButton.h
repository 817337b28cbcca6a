// A toggle that is filled with a gradient.
#pragma once

#include <QImage>
#include <QPushButton>

/// Violet when it is on, grey when it is off, darker towards its lower edge; in the light and in the dark look.
class GradientButton : public QPushButton {
    Q_OBJECT
public:
    explicit GradientButton(QWidget* parent = nullptr);

    /// Switches it and fills it anew.
    void setState(bool on);
    /// The filling at the button's size.
    QImage gradientImage(bool on) const;
    /// A fifth darker in each component, of the same alpha.
    static QColor darkerColorForColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void nextCheckState() override;
    void checkStateSet() override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    bool event(QEvent*) override;

private:
    QImage m_image;
};
