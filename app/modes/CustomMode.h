// Custom mode.
#pragma once

#include "app/modes/EffectMode.h"

class customEffImageView;

/// Shows pictures that the program generates.
class CustomMode : public EffectMode {
    Q_OBJECT

public:
    /// The undo of a chosen favourite asks the mode `family` for the previous one, which there finds nothing or clears
    /// the effect.
    CustomMode(const ModeParts& parts, customEffImageView& view, Mode& family, Document& document);

    void updateView() override;
    ZoomedCanvas* canvas() const override;
    bool needsReducedCopies() const override { return true; }
    BaseEffect::LaterImage laterFinishedImage() override;
    void apply(const std::function<void()>& done) override;
    void makeFavourite(const TakeFavourite& take) override;
    void chooseFavourite(onlyTextClosedButton* button) override;

protected:
    Title title() const override;
    CIImage shownImage() override;

private:
    customEffImageView& m_view;
    Mode& m_family;
};
