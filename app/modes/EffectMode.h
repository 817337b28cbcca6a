// What the two modes of effects share.
#pragma once

#include "app/catalogue/OutlineModel.h"
#include "app/modes/EffectList.h"
#include "app/modes/Mode.h"

#include <string>

/// Each item is a copy of a prototype; its undo steps go with it.
class EffectMode : public Mode {
    Q_OBJECT

public:
    BaseEffect* effect() const { return m_effect.get(); }
    const std::vector<std::shared_ptr<BaseEffect>>& prototypes() const { return m_effects.prototypes(); }
    bool hasClass(const QString& className) const { return rowOf(className) >= 0; }
    /// As a click on its row in the list does.
    void chooseClass(const QString& className);

    bool hasItem() const override { return m_effect != nullptr; }
    void choose(const OutlineItem* row) override;
    void save(SessionState& state, const CIImage& picture) const override;
    void restore(const SessionState& state) override;
    void pictureChanged() override;

protected:
    /// `family` gets its way to make effects here. The item is kept in session states under `sessionKey`.
    EffectMode(const ModeParts& parts, EffectList effects, std::string sessionKey, FavouritesFamily family,
        Document& document);
    void dropItem() override { setEffect({}); }
    bool bringBack(const Favourite* favourite) override;
    /// Of the effect, for the title; empty without one.
    QString effectName() const;

private:
    int rowOf(const QString& className) const; // negative when there is none
    void setEffect(const std::shared_ptr<BaseEffect>& effect);
    std::shared_ptr<BaseEffect> effectFrom(const CIDictionary& saved) const;

    EffectList m_effects;
    OutlineModel m_rows;
    std::string m_sessionKey;
    std::shared_ptr<BaseEffect> m_effect;
};
