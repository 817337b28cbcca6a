// What the files of MyImageView share.
#pragma once

#include "controls/MyImageView.h"

#include <QElapsedTimer>
#include <QWidget>

struct MyImageView::Private {
    PictureScrollView* scrollView = nullptr;
    std::shared_ptr<CIContext> context;
    std::unique_ptr<FrameRenderer> renderer;

    bool pictureChanged = true; // ask the controller when next drawn
    CIImage picture;
    std::optional<Frame> frame; // what is shown until a newer one is ready
    QPointF subpixel; // where the widget's corner lies within a device pixel

    std::optional<CIPoint> eventMouse; // of the event being handled, view coordinates
    double wheelRest = 0; // of wheels that turn in small steps
    std::optional<std::size_t> hovered; // index of the point that a click would grab
    std::optional<std::size_t> selected; // index of the point that the keys move
    bool spaceHeld = false;
    std::optional<QPointF> panFrom; // widget coordinates
    CIPoint panScroll; // scroll position when the pan began
    QPointer<QWidget> dropHighlight;
};
