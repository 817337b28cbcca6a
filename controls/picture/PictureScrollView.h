// The scroll view around the picture.
#pragma once

#include "widgets/CanvasScrollView.h"

class MyImageView;

class PictureScrollView : public CanvasScrollView {
    Q_OBJECT
public:
    explicit PictureScrollView(QWidget* parent = nullptr);

    MyImageView* imageView() const { return m_view; }

private:
    MyImageView* m_view;
};
