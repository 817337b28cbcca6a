// The slider of the panel.
#pragma once

#include "widgets/AccessibleValue.h"

#include <optional>

#include <QWidget>

/// A slim slider over real numbers. What it says by `valueChanged` is what the user did; setting its value says
/// nothing.
///
/// A press on the track jumps there. Shift makes a drag ten times finer, as it makes the steps of arrow keys and wheel.
/// Page keys go ten steps, Home and End to the ends, Delete asks for the standard value. The wheel is left to a panel
/// that scrolls unless the slider has the focus. An empty range disables it.
class ValueSlider : public QWidget, public AccessibleValue {
    Q_OBJECT
public:
    explicit ValueSlider(QWidget* parent = nullptr);

    void setRange(double minimum, double maximum);
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// Only whole numbers can be reached by hand.
    void setWhole(bool whole) { m_whole = whole; }
    /// Marked on the track.
    void setStandardValue(std::optional<double> value);

    double value() const { return m_value; }
    /// Outside the range the nearer end is shown.
    void setValue(double value);
    /// As if the user had put it there, within the range.
    void moveTo(double value);
    double singleStep() const;
    /// What assistive technology says.
    void setValueText(const QString& text) { m_valueText = text; }
    QString valueText() const override { return m_valueText; }
    Range valueRange() const override { return {m_value, m_minimum, m_maximum, singleStep()}; }
    void takeValue(double value) override { moveTo(value); }

    QSize sizeHint() const override { return {120, 16}; }

signals:
    void valueChanged();
    void pressed(); // a drag begins; `released` follows, or the end of the slider
    void released();
    void standardValueWanted();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    double positionOf(double value) const; // of the handle's center, widget coordinates
    double trackLength() const;
    void step(double steps, bool finer);
    bool somethingScrolls() const;

    double m_minimum = 0, m_maximum = 1, m_value = 0;
    std::optional<double> m_standard;
    bool m_whole = false, m_dragged = false, m_hovered = false;
    double m_dragValue = 0; // not rounded
    double m_lastX = 0;
    double m_wheelRest = 0;
    QString m_valueText;
};
