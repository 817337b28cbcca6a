// What the 3D effects share.
#pragma once

#include "effects2d/BaseEffect.h"

#include <QCoreApplication>

class PictureTexture;

/// An effect in space that is turned with the mouse, 1 degree for 2 points. The source picture is its texture.
/// `draw` needs a current context with the viewport set and the model-view matrix chosen.
class TurnedEffect : public BaseEffect {
    Q_DECLARE_TR_FUNCTIONS(TurnedEffect)
public:
    ~TurnedEffect() override;

    void clearEffect() override;
    /// Lets go of the texture.
    void clearFilter();

    void mouseDown(CIPoint point) override;
    void mouseDragged(CIPoint point) override;
    void mouseUp(CIPoint point) override;
    void setPositionUNDO(float aboutVertical, float aboutHorizontal);

    /// What it becomes when it is applied: as large as it is seen, or as the picture.
    enum AppliedSize { OfWindow, OfPicture };
    AppliedSize appliedSize() const { return AppliedSize(m_appliedSize); }

protected:
    using Rotation = std::array<float, 4>; // half degrees about the vertical and the horizontal axis; two unused

    virtual Rotation& rotation() = 0;

    /// The last rows of the panel of every such effect.
    static EffectParameter background();
    static EffectParameter sizeToApply();
    /// Clears the frame, in the background's color.
    void clearFrame() const;

    /// Gets the controller's picture as `m_texture`; without one, lets go of it.
    void loadPicture();
    /// Null without a picture.
    const PictureTexture* picture() const { return m_picture.get(); }

    /// The next drawing sets OpenGL up with the new values.
    void parameterChanged(const ParameterFacts&) override { clearFilter(); }
    const char* notification() const override { return "UpdateOpenGLView"; }

private:
    std::shared_ptr<PictureTexture> m_picture;
    CIColor m_backgroundColor; // transparent at first
    int m_appliedSize = OfWindow;
    CIPoint m_last; // where the mouse was, y down
};
