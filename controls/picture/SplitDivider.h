// The line between the picture without the filter and the result.
#pragma once

#include "widgets/AccessibleValue.h"

#include <QWidget>

#include <optional>

/// Stands across the whole height of the view it is made in. It is taken at its round grip, with the mouse or the keys:
/// left and right, with Shift ten times as far, Home and End.
///
/// The line is drawn by the view, under the marks of points; this is the grip and what takes the mouse.
class SplitDivider : public QWidget, public AccessibleValue {
    Q_OBJECT
public:
    explicit SplitDivider(QWidget* view);

    /// From 0, the left edge of the view, to 1. It keeps its place when the view changes size.
    double place() const { return m_place; }
    void setPlace(double place);
    /// The view's points.
    int lineX() const;
    void drawLine(QPainter& painterOfView) const;

    /// Whether the line can be taken too. Not while it would be in the way of points.
    void setTakenAtLine(bool taken);
    /// The view has changed size.
    void followView();

    Range valueRange() const override;
    QString valueText() const override;
    void takeValue(double value) override { setPlace(value); }

signals:
    void moved();

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    QPoint gripCenter() const;

    double m_place = 0.5;
    bool m_takenAtLine = false;
    std::optional<int> m_grabbedAt; // points from the line to the mouse
};
