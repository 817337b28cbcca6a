// What the files of MyImageView share.
#pragma once

#include "controls/MyImageView.h"

#include <QElapsedTimer>
#include <QWidget>

struct MyImageView::Private {
    /// A picture and how far it is rendered.
    struct Layer {
        bool changed = true; // ask the controller when next drawn
        CIImage picture;
        std::optional<Frame> frame; // what is shown until a newer one is ready
        std::unique_ptr<FrameRenderer> renderer;
    };

    std::shared_ptr<CIContext> context;
    // Apart, so that the result is there at once when the original has been looked at.
    Layer result, original;
    bool showsOriginal = false;
    Layer& shown() { return showsOriginal ? original : result; }

    std::optional<std::size_t> hovered; // index of the point that a click would grab
    std::optional<std::size_t> selected; // index of the point that the keys move
    QPointer<QWidget> dropHighlight;
};
