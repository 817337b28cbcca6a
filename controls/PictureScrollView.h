// The scroll view around the picture.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <QAbstractScrollArea>

class MyImageView;

/// Scrolls a picture view that is, in points, as large as its bounds times its zoom. Nothing of that size is ever
/// made: the view is the viewport and draws the visible part.
class PictureScrollView : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit PictureScrollView(QWidget* parent = nullptr);
    ~PictureScrollView() override;

    MyImageView* imageView() const { return m_view; }

    /// Scroll position and size of the visible part, in points from the lower left corner of the whole view; y up.
    CIRect clipBounds() const;
    void setFrameSize(CIPoint size);
    /// Goes to the nearest possible position; fractions of a point are kept.
    void setScrollPosition(CIPoint lowerLeft);

protected:
    bool viewportEvent(QEvent*) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void updateScrollBars();

    MyImageView* m_view;
    CIPoint m_frameSize;
    CIPoint m_position; // clamped into the frame
    QSizeF m_visibleSize;
    bool m_moving = false; // the scroll bars follow the position, not the other way round
};
