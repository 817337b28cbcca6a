// What is seen of a picture file on its way.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <QObject>

#include <vector>

class CanvasScrollView;
class MainWindow;
class Opening;
class StatusRow;
class ZoomedCanvas;
class Zooming;

/// While a file is being opened, the status row says how far it is, and nothing can be edited. When it is given up, the
/// former picture is looked at as before.
class OpeningView : public QObject {
    Q_OBJECT

public:
    OpeningView(MainWindow& window, Opening& opening, StatusRow& status, Zooming& zooming);

    /// What the window has room for, in px; before it is on the screen, what the screen has.
    int reducedSide() const;
    /// What is going on. Long names lose their middle, or they would widen the window.
    QString text(const QString& path) const;

signals:
    /// The parts of the window that edit have been closed, or are open again.
    void editableChanged();

private:
    /// How a canvas is looked at.
    struct Sight {
        ZoomedCanvas* canvas = nullptr;
        CanvasScrollView* scroller = nullptr;
        float zoom = 1;
        CIPoint scroll;
    };
    static Sight sightOf(ZoomedCanvas& canvas, CanvasScrollView& scroller);
    void show();
    void hide();
    void setEditable(bool on);

    MainWindow& m_window;
    Opening& m_opening;
    StatusRow& m_status;
    std::vector<Sight> m_sights; // of the former picture, while a reduced one stands in for the new one
};
