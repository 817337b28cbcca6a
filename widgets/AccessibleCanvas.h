// What assistive technology is told about a view that shows a picture.
#pragma once

#include <QAccessible>
#include <QList>
#include <QPointF>
#include <QString>

/// A place on the picture that mouse and keys can move.
struct CanvasPoint {
    QString name;
    QString position; // in words
    QPointF place; // widget coordinates
    bool selected = false; // the keys move it
};

/// A widget that is also this becomes a canvas with its points as children. It has to call `installAccessibleCanvas`
/// first of all in its constructor: what is told of a widget is settled the first time anything about it changes.
class AccessibleCanvas {
public:
    virtual ~AccessibleCanvas() = default;
    virtual QString canvasValue() const { return {}; }
    virtual QList<CanvasPoint> canvasPoints() const { return {}; }

protected:
    /// Does nothing the second time.
    static void installAccessibleCanvas();
    /// Something has happened to a point of `view`.
    static void notifyPoint(QWidget* view, qsizetype index, QAccessible::Event event);
};
