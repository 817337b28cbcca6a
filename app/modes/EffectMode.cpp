#include "app/modes/EffectMode.h"

#include "app/catalogue/OutlineView.h"
#include "app/document/Document.h"
#include "app/document/SessionFolder.h"
#include "effects2d/CustomEffects.h"

#include <QCoreApplication>

#include <algorithm>

EffectMode::EffectMode(
    const ModeParts& parts, EffectList effects, std::string sessionKey, FavouritesFamily family, Document& document)
    : Mode(parts,
        {std::move(family.defaultsKey), [this](const CIDictionary& saved) { return effectFrom(saved); }, family.place},
        document)
    , m_effects(std::move(effects))
    , m_rows(m_effects, {EffectList::kTitleColumn, EffectList::kMarkerColumn})
    , m_sessionKey(std::move(sessionKey))
{
    for (const std::shared_ptr<BaseEffect>& prototype : prototypes())
        prototype->setTopControlsView(&parts.controls);
    parts.list.setModel(&m_rows);
}

void EffectMode::choose(const OutlineItem* row)
{
    const auto* chosen = dynamic_cast<const EffectRow*>(row);
    setEffect(chosen ? chosen->effect->mycopy() : nullptr);
    deselectFavourite();
    if (chosen)
        m_document.setWasChanged(true);
}

int EffectMode::rowOf(const QString& className) const
{
    const auto found = std::ranges::find(prototypes(), className.toStdString(), &BaseEffect::className);
    return found == prototypes().end() ? -1 : int(found - prototypes().begin());
}

void EffectMode::chooseClass(const QString& className) { list().selectRow(m_rows.index(rowOf(className), 0)); }

/// What the undo steps of the former one would change is gone, so they go with it.
void EffectMode::setEffect(const std::shared_ptr<BaseEffect>& effect)
{
    if (m_effect) {
        m_document.undoManager().removeAllActionsWithTarget(m_effect.get());
        m_effect->clearEffect();
    }
    m_effect = effect;
    if (m_effect)
        m_effect->setUpControlsView();
    showTitle();
}

bool EffectMode::bringBack(const Favourite* favourite)
{
    if (!favourite || !favourite->effect)
        return false;
    setEffect(favourite->effect->mycopy());
    return true;
}

std::shared_ptr<BaseEffect> EffectMode::effectFrom(const CIDictionary& saved) const
{
    return customEffectFromDictionary(prototypes(), saved);
}

void EffectMode::save(SessionState& state, const CIImage&) const
{
    if (m_effect)
        state.values[m_sessionKey] = m_effect->save();
}

void EffectMode::restore(const SessionState& state) { setEffect(effectFrom(state.dictionary(m_sessionKey))); }

void EffectMode::pictureChanged()
{
    if (m_effect)
        m_effect->reloadImage();
}

QString EffectMode::effectName() const
{
    return m_effect ? QCoreApplication::translate("BaseEffect", m_effect->myname().c_str()) : QString();
}
