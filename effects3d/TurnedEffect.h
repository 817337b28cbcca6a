// What the 3D effects share.
#pragma once

#include "effects2d/BaseEffect.h"
#include "effects2d/EffectControl.h"

#include <QCoreApplication>

#include <functional>

class EffectPanel;
class PictureTexture;

/// An effect in space that is turned with the mouse, 1 degree for 2 points. The source picture is its texture.
/// `draw` needs a current context with the viewport set and the model-view matrix chosen.
///
/// Each parameter has a control action `change…(sender)` and an undo target that takes the value and the control.
class TurnedEffect : public BaseEffect {
    Q_DECLARE_TR_FUNCTIONS(TurnedEffect)
public:
    ~TurnedEffect() override;

    void clearEffect() override;
    /// Lets go of the texture.
    void clearFilter();
    void setUpControlsView() override;

    void mouseDown(CIPoint point) override;
    void mouseDragged(CIPoint point) override;
    void mouseUp(CIPoint point) override;
    void setPositionUNDO(float aboutVertical, float aboutHorizontal);

protected:
    using Rotation = std::array<float, 4>; // half degrees about the vertical and the horizontal axis; two unused

    virtual Rotation& rotation() = 0;
    virtual void buildControls(EffectPanel&) { }

    /// Gets the controller's picture as `m_texture`; without one, lets go of it.
    void loadPicture();
    /// Null without a picture.
    const PictureTexture* picture() const { return m_picture.get(); }

    /// A control's connection to an action of this effect; does nothing when the effect is gone.
    template <class Effect>
    std::function<void(EffectControl*)> action(void (Effect::*act)(EffectControl*))
    {
        return [weak = weak_from_this(), act](EffectControl* sender) {
            if (const std::shared_ptr<BaseEffect> effect = weak.lock())
                (static_cast<Effect&>(*effect).*act)(sender);
        };
    }
    /// Registers the call of an operation of this effect, and names the step after what it takes back.
    template <class Effect, class... Parameters, class... Arguments>
    void registerUndo(const QString& what, void (Effect::*operation)(Parameters...), Arguments... arguments)
    {
        registerUndoInvocation(what, [effect = shared_from_this(), operation, arguments...] {
            (static_cast<Effect&>(*effect).*operation)(arguments...);
        });
    }
    static void post();

private:
    void registerUndoInvocation(const QString& what, std::function<void()> invocation);

    std::shared_ptr<PictureTexture> m_picture;
    CIPoint m_last; // where the mouse was, y down
};

/// Takes over a stored number if it is there.
template <class T>
void readNumber(const CIDictionary& dictionary, const std::string& key, T& field)
{
    const auto found = dictionary.find(key);
    if (found != dictionary.end())
        field = parameterValue<T>(found->second);
}

/// Stored numbers under "key0", "key1" …
template <class T, std::size_t N>
void readNumbers(const CIDictionary& dictionary, const char* key, std::array<T, N>& fields, std::size_t count = N)
{
    for (std::size_t i = 0; i < count; ++i)
        readNumber(dictionary, key + std::to_string(i), fields[i]);
}

template <class T, std::size_t N>
void saveNumbers(CIDictionary& dictionary, const char* key, const std::array<T, N>& fields, std::size_t count = N)
{
    for (std::size_t i = 0; i < count; ++i)
        dictionary[key + std::to_string(i)] = float(fields[i]);
}
