// What the files of MyImageView share.
#pragma once

#include "controls/MyImageView.h"

#include <QElapsedTimer>
#include <QWidget>

struct MyImageView::Private {
    std::shared_ptr<CIContext> context;
    std::unique_ptr<FrameRenderer> renderer;

    bool pictureChanged = true; // ask the controller when next drawn
    CIImage picture;
    std::optional<Frame> frame; // what is shown until a newer one is ready

    std::optional<std::size_t> hovered; // index of the point that a click would grab
    std::optional<std::size_t> selected; // index of the point that the keys move
    QPointer<QWidget> dropHighlight;
};
