// 3D mode.
#pragma once

#include "app/modes/EffectMode.h"

class MyOGLView;
class ThreeDStage;

/// Shows the picture on bodies in space.
class ThreeDMode : public EffectMode {
    Q_OBJECT

public:
    ThreeDMode(const ModeParts& parts, ThreeDStage& stage, Document& document);

    void updateView() override;
    void apply(const std::function<void()>& done) override;
    void makeFavourite(const TakeFavourite& take) override;

protected:
    Title title() const override;
    CIImage shownImage() override;

private:
    ThreeDStage& m_stage;
    MyOGLView& m_view;
};
