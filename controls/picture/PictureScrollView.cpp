#include "controls/picture/PictureScrollView.h"

#include "controls/picture/MyImageView.h"

PictureScrollView::PictureScrollView(QWidget* parent)
    : CanvasScrollView(parent)
    , m_view(new MyImageView(this))
{
    setCanvas(m_view);
}
