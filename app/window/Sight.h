// How the picture is looked at.
#pragma once

#include "widgets/CanvasScrollView.h"
#include "widgets/ZoomedCanvas.h"

/// How a canvas is looked at: zoom and scroll position.
class Sight {
public:
    Sight(ZoomedCanvas& canvas, CanvasScrollView& scroller)
        : m_canvas(&canvas)
        , m_scroller(&scroller)
        , m_zoom(canvas.getZoom())
        , m_scroll{scroller.clipBounds().x, scroller.clipBounds().y}
    {
    }
    void restore() const
    {
        m_canvas->setZoom(m_zoom);
        m_scroller->setScrollPosition(m_scroll);
    }

private:
    ZoomedCanvas* m_canvas;
    CanvasScrollView* m_scroller;
    float m_zoom;
    CIPoint m_scroll;
};
