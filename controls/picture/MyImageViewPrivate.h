// What the files of MyImageView share.
#pragma once

#include "controls/picture/LayerPoints.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/SplitDivider.h"

#include <QElapsedTimer>
#include <QWidget>

/// A picture and how far it is rendered.
struct MyImageView::Layer {
    bool changed = true; // ask the controller when next drawn
    CIImage picture;
    std::optional<Frame> frame; // what is shown until a newer one is ready
    std::unique_ptr<FrameRenderer> renderer;
};

struct MyImageView::Private {
    std::shared_ptr<CIContext> context;
    // Apart, so that the result is there at once when the original has been looked at.
    Layer result, original;
    bool showsOriginal = false;
    Layer& shown() { return showsOriginal ? original : result; }
    SplitDivider* divider = nullptr; // seen while the view is split
    bool isSplit() const { return !divider->isHidden() && !showsOriginal; }

    std::function<void(std::optional<CIPoint>)> pick; // while a place is asked for
    std::vector<FreeLayer> layers; // of the filter
    std::weak_ptr<CIFilter> layersOf;
    bool areLayersKnown = false;

    CIPoint grabOffset; // from the pointer to a layer's point, which doesn't jump to it
    std::optional<CIPoint> pressed; // where the button went down on the picture itself
    bool isChanging = false; // between beginChange and endChange
    std::optional<std::size_t> hovered; // index of the point that a click would grab
    std::optional<std::size_t> selected; // index of the point that the keys move
    QPointer<QWidget> dropHighlight;
};
