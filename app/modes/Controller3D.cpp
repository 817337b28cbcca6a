// 3D mode.
#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "effects3d/EvalEffect.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ObjectEffect.h"
#include "effects3d/ThreeDStage.h"
#include "ui_MainWindow.h"

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

/// The prototypes in list order.
std::vector<std::shared_ptr<BaseEffect>> Controller::effects3D()
{
    eval3DEffect = std::make_shared<EvalEffect>();
    object3DEffect = std::make_shared<ObjectEffect>();
    return {eval3DEffect, object3DEffect};
}

void Controller::connect3D()
{
    for (const std::shared_ptr<BaseEffect>& prototype : m_effects3D.prototypes()) {
        prototype->setTopControlsView(ui.place3DCntrlView);
        prototype->awakeFromNib();
    }
    filter3DOutlineView->setModel(&m_list3D);
    connect(filter3DOutlineView, &OutlineView::selectionDidChange, this, [this] {
        if (!m_selectionIsOurs)
            outlineViewSelectionDidChange(*filter3DOutlineView);
    });
    openGLView->awakeFromNib();
    openGLView->setController(this);
    setModeResult(ThreeD, [this] { return result3D(); });
}

void Controller::setCurrent3DEffect(const std::shared_ptr<BaseEffect>& effect)
{
    if (current3DEffect) {
        m_undoManager.removeAllActionsWithTarget(current3DEffect.get());
        current3DEffect->clearEffect();
    }
    current3DEffect = effect;
    if (current3DEffect)
        current3DEffect->setUpControlsView();
    show3DEffectName();
}

void Controller::outlineViewSelectionDidChange_3D(const OutlineItem* item)
{
    const auto* row = dynamic_cast<const EffectRow*>(item);
    setCurrent3DEffect(row ? row->effect->mycopy() : nullptr);
    switchOff(m_selectes_FavBtn3D);
    if (row)
        m_document.setWasChanged(true);
}

void Controller::updateView3D()
{
    const CIRect extent = m_document.picture().extent();
    ui.openGLStage->setProportions({extent.width, extent.height}, current3DEffect != nullptr);
    openGLView->redraw();
}

/// The name above the controls, and what can be done without them.
void Controller::show3DEffectName()
{
    if (filerMode() != ThreeD)
        return;
    const bool shown = current3DEffect != nullptr;
    if (shown)
        ui.filterNameField->setText(QCoreApplication::translate("BaseEffect", current3DEffect->myname().c_str()));
    ui.filterNameField->setVisible(shown);
    ui.filterNameLine->setVisible(shown);
    ui.filterHintField->setVisible(true);
    ui.filterHintField->setText(shown ? tr("Drag the picture to turn it. The arrow keys turn it as well.")
                                      : tr("Choose an effect from the list to see the picture in space."));
}

CIImage Controller::result3D() { return current3DEffect ? imageOfShot(openGLView->ogl_shot()) : CIImage(); }

void Controller::apply3D()
{
    const CIImage shot = openGLView->ogl_shot_CI();
    if (!shot)
        return;
    m_document.replacePicture(shot, tr("Apply"));
    m_document.setWasChanged(true);
    if (current3DEffect)
        current3DEffect->reloadImage();
}
