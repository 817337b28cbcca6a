// Custom mode.
#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "effects2d/CustomEffects.h"
#include "effects2d/customEffImageView.h"
#include "platform/chain/Baking.h"
#include "ui_MainWindow.h"
#include "widgets/BackgroundWork.h"

#include <QCoreApplication>

/// The prototypes in list order.
std::vector<std::shared_ptr<BaseEffect>> Controller::effectsCustom()
{
    const std::vector<std::shared_ptr<BaseEffect>> prototypes = customEffectPrototypes();
    std::shared_ptr<BaseEffect>* const fields[] = {&m_simpleEffect, &m_lineEffect, &m_hilbertEffect, &m_patchWorkEffect,
        &m_flareEffect, &m_plasmaEffect, &m_pMorphingEffect, &m_sketchEffect};
    for (std::size_t row = 0; row < std::size(fields); ++row)
        *fields[row] = prototypes[row];
    return prototypes;
}

void Controller::connectCustom()
{
    for (const std::shared_ptr<BaseEffect>& prototype : m_effectsCustom.prototypes())
        prototype->setTopControlsView(ui.placeCustomCntrlView);
    filterCustomOutlineView->setModel(&m_listCustom);
    connect(filterCustomOutlineView, &OutlineView::selectionDidChange, this, [this] {
        if (!m_selectionIsOurs)
            outlineViewSelectionDidChange(*filterCustomOutlineView);
    });
    customEffectsView->awakeFromNib();
    customEffectsView->setController(this);
    setModeResult(Custom, [this] { return resultCustom(); });
}

/// What the undo steps of the former one would change is gone, so they go with it.
void Controller::setCurrentCustomEffect(const std::shared_ptr<BaseEffect>& effect)
{
    if (currentCustomEffect) {
        m_undoManager.removeAllActionsWithTarget(currentCustomEffect.get());
        currentCustomEffect->clearEffect();
    }
    currentCustomEffect = effect;
    if (currentCustomEffect)
        currentCustomEffect->setUpControlsView();
    showCustomEffectName();
}

void Controller::outlineViewSelectionDidChange_Custom(const OutlineItem* item)
{
    const auto* row = dynamic_cast<const EffectRow*>(item);
    setCurrentCustomEffect(row ? row->effect->mycopy() : nullptr);
    switchOff(m_selectes_FavBtnCustom);
    if (row)
        m_document.setWasChanged(true);
}

/// The name above the controls, and what can be done without them.
void Controller::showCustomEffectName()
{
    if (filerMode() != Custom)
        return;
    const bool shown = currentCustomEffect != nullptr;
    if (shown)
        ui.filterNameField->setText(QCoreApplication::translate("BaseEffect", currentCustomEffect->myname().c_str()));
    ui.filterNameField->setVisible(shown);
    ui.filterNameLine->setVisible(shown);
    ui.filterHintField->setVisible(!shown || currentCustomEffect->isMousing());
    ui.filterHintField->setText(shown
            ? tr("Drag on the picture to move the effect. The arrow keys move it as well.")
            : tr("Choose an effect from the list to draw it over the picture or over a color."));
}

CIImage Controller::resultCustom() { return currentCustomEffect ? currentCustomEffect->getDrawImage() : CIImage(); }

/// False when the user stopped it.
bool Controller::applyCustom()
{
    if (!currentCustomEffect)
        return true;
    CIImage drawn, baked;
    WorkControl control(1);
    const BaseEffect::LaterImage draw = currentCustomEffect->laterDrawImage();
    workInBackground(&m_window, tr("Applying the effect…"), control, [&] {
        drawn = draw(&control.rendering);
        baked = bakedImage(*m_document.context(), drawn, m_document.format(), &control.rendering);
        makeReducedCopies(baked);
    });
    if (control.isCancelled())
        return false;
    if (drawn) {
        m_document.replacePicture(baked ? baked : drawn, tr("Apply"));
        m_document.setWasChanged(true);
    }
    return true;
}

void Controller::addFavoritesCustom()
{
    if (!currentCustomEffect)
        return;
    QImage thumbnail;
    WorkControl control(1);
    const BaseEffect::LaterImage draw = currentCustomEffect->laterDrawImage();
    workInBackground(&m_window, tr("Drawing the favourite…"), control,
        [&] { thumbnail = favouriteThumbnail(draw(&control.rendering)); });
    if (!thumbnail.isNull())
        m_favoritesCustom.add(thumbnail, *currentCustomEffect);
}

void Controller::filterChangedCustom(onlyTextClosedButton* sender)
{
    m_undoManager.registerUndoWithTarget(
        this, [this, previous = m_selectes_FavBtnCustom] { filterChanged3D(previous); });
    m_undoManager.setActionName(tr("Choose Favourite"));
    chooseEffectFavourite(m_favoritesCustom, m_selectes_FavBtnCustom, *filterCustomOutlineView, sender);
}
