#include "controls/PictureScrollView.h"

#include "controls/MyImageView.h"

PictureScrollView::PictureScrollView(QWidget* parent)
    : CanvasScrollView(parent)
    , m_view(new MyImageView(this))
{
    setCanvas(m_view);
}
