#include "app/modes/ThreeDMode.h"

#include "app/catalogue/Thumbnail.h"
#include "app/document/Document.h"
#include "effects3d/EvalEffect.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ObjectEffect.h"
#include "effects3d/ThreeDStage.h"

namespace {

/// The picture's pixels, in memory shared with it.
CIImage imageOfShot(const QImage& shot)
{
    if (shot.isNull())
        return {};
    return CIImage::fromBitmap(CIBitmap(shot.constBits(), shot.width(), shot.height(), std::size_t(shot.bytesPerLine()),
        CIFormat::BGRA8, CIAlpha::Premultiplied, CIColorSpace::SRGB, std::make_shared<const QImage>(shot)));
}

} // namespace

ThreeDMode::ThreeDMode(const ModeParts& parts, ThreeDStage& stage, Document& document)
    : EffectMode(parts,
        EffectList({std::make_shared<EvalEffect>(), std::make_shared<ObjectEffect>()}, EffectList::Marks::All),
        "effect3D",
        {QStringLiteral("3DEffectsFavorites"), {}, &QWidget::y}, // all lie at the top: a step towards the first
        document)
    , m_stage(stage)
    , m_view(*stage.openGLView())
{
    for (const std::shared_ptr<BaseEffect>& prototype : prototypes())
        prototype->awakeFromNib();
    m_view.awakeFromNib();
}

void ThreeDMode::updateView()
{
    const CIRect extent = m_document.picture().extent();
    m_stage.setProportions({extent.width, extent.height}, hasItem());
    m_view.redraw();
}

Mode::Title ThreeDMode::title() const
{
    return {effectName(),
        hasItem() ? tr("Drag the picture to turn it. The arrow keys turn it as well.")
                  : tr("Choose an effect from the list to see the picture in space.")};
}

/// Upright, with the screen's pixels for points.
CIImage ThreeDMode::shownImage() { return hasItem() ? imageOfShot(m_view.ogl_shot()) : CIImage(); }

void ThreeDMode::apply(const std::function<void()>& done)
{
    const auto* turned = dynamic_cast<const TurnedEffect*>(effect());
    const bool isOfPicture = turned && turned->appliedSize() == TurnedEffect::OfPicture && m_document.picture();
    if (const CIImage shot = isOfPicture ? m_view.shotOfSize(m_stage.proportions().toSize()) : m_view.ogl_shot_CI()) {
        replacePicture(shot);
        const CIRect extent = shot.extent();
        const QString text = isOfPicture ? tr("Applied in the picture's size: %1 × %2 pixels", "width, height")
                                         : tr("Applied in the window's size: %1 × %2 pixels", "width, height");
        emit m_document.message(text.arg(int(extent.width)).arg(int(extent.height)));
    }
    done();
}

void ThreeDMode::makeFavourite(const TakeFavourite& take)
{
    if (!hasItem())
        return;
    const QImage thumbnail = favouriteThumbnail(m_view.ogl_shot());
    if (!thumbnail.isNull())
        take({thumbnail, QString::fromStdString(effect()->tips()), {}, effect()->mycopy()});
}
