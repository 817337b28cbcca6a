#include "effects3d/ThreeDStage.h"

#include "effects3d/MyOGLView.h"
#include "effects3d/Top3DView.h"

#include <algorithm>

#include <QLabel>

namespace {

constexpr QSizeF kProportionsWithoutPicture(726, 544);
constexpr double kLongestSheet = 2; // times its shorter side, with an effect
constexpr int kMargin = 16; // points

} // namespace

ThreeDStage::ThreeDStage(QWidget* parent)
    : QWidget(parent)
    , m_paper(new Top3DView(this))
    , m_view(new MyOGLView(m_paper))
    , m_note(new QLabel(tr("3D effects need OpenGL 2.1, which this machine does not offer.\n"
                           "Everything else works without it."),
          this))
    , m_proportions(kProportionsWithoutPicture)
{
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setWordWrap(true);
    m_note->hide();
    setFocusProxy(m_view);
}

void ThreeDStage::setProportions(const QSizeF& picture, bool hasEffect)
{
    m_proportions = picture.isEmpty() ? kProportionsWithoutPicture : picture;
    if (hasEffect) {
        const double shorter = std::min(m_proportions.width(), m_proportions.height());
        m_proportions = m_proportions.boundedTo(QSizeF(shorter, shorter) * kLongestSheet);
    }
    layOut();
}

void ThreeDStage::layOut()
{
    const QRect area = rect().marginsRemoved({kMargin, kMargin, kMargin, kMargin});
    const QSize sheet = m_proportions.scaled(QSizeF(area.size()), Qt::KeepAspectRatio).toSize().expandedTo({1, 1});
    m_paper->setGeometry(QRect(area.center() - QPoint(sheet.width(), sheet.height()) / 2, sheet));
    m_view->setGeometry(m_paper->rect());
    m_note->setGeometry(area);
}

void ThreeDStage::resizeEvent(QResizeEvent*) { layOut(); }

void ThreeDStage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    const bool usable = m_view->isUsable();
    m_paper->setVisible(usable);
    m_note->setVisible(!usable);
}
