// What all generated effects share, flat ones and those in 3D.
#pragma once

#include "effects2d/EffectParameter.h"
#include "platform/coreimage/CIContext.h"
#include "platform/quartz/Drawing.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class EffectControl;
class EffectPanel;
class UndoManager;

/// A generated effect. The list holds one prototype of each class; the user edits copies of them (`mycopy`). A class
/// says in its `declaration` what it is called and which parameters it has, and adds the drawing.
///
/// Each parameter has a control action `change…(sender)` and an undo target that takes the value and the control, which
/// may be null. They are the names by which others know `change` and `restore`.
///
/// Effects are made with std::make_shared: undo steps keep the effect that they belong to alive.
/// Points are picture pixels, y up. Main thread only.
class BaseEffect : public std::enable_shared_from_this<BaseEffect> {
public:
    BaseEffect() = default;
    virtual ~BaseEffect() = default;
    BaseEffect(const BaseEffect&) = delete;
    BaseEffect& operator=(const BaseEffect&) = delete;

    virtual const EffectDeclaration& declaration() const;
    /// The name of the class in stored dictionaries.
    std::string className() const { return declaration().className; }

    /// Gives a prototype its name, tips and the parameters that the user starts with. Copies never get this call.
    virtual void awakeFromNib();

    std::string myname() const { return name; }
    std::string tips() const { return m_tips; }
    /// True when the effect has an anchor point that is placed with the mouse.
    virtual bool isMousing() const { return false; }
    void setName(const std::string& newName) { name = newName; }
    void setTips(const std::string& newTips) { m_tips = newTips; }

    /// Takes all controls out of the panel.
    void clearTopControlsView();
    void setTopControlsView(QWidget* view) { topControlsView = view; }
    QWidget* getTopControlsView() const { return topControlsView; }

    virtual void initEffect() { }
    /// The effect is no longer shown.
    virtual void clearEffect() { }

    /// A new effect of the same class with only the name, the tips and the panel taken over.
    std::shared_ptr<BaseEffect> copyWithZone() const;
    /// A new effect with the same parameters. It fetches the picture and draws on its own.
    virtual std::shared_ptr<BaseEffect> mycopy() const;

    virtual void draw() { }
    virtual void mouseDown(CIPoint) { }
    virtual void mouseUp(CIPoint) { }
    virtual void mouseDragged(CIPoint) { }

    /// Builds the controls into the panel.
    virtual void setUpControlsView();

    /// Fetches the picture from the controller, unless it is there.
    virtual void loadImage() { }
    /// The controller's picture has changed.
    virtual void reloadImage() { }
    CIPoint startPoint() const { return m_startPT; }

    /// Takes over the parameters that are present.
    void read(const CIDictionary& dictionary);
    /// The parameters and the class name, as favourites are stored.
    CIDictionary save() const;

    /// The finished picture at full size; null for none.
    virtual CIImage getDrawImage() { return m_image; }
    /// What `getDrawImage` gives now, to be made later: on any thread, also when the effect has changed or is gone.
    /// Null when `control`, which may be null, is cancelled.
    using LaterImage = std::function<CIImage(CIRenderControl* control)>;
    virtual LaterImage laterDrawImage();
    /// What of `getDrawImage` lies in a part of the canvas, for the screen. Null when there is no picture.
    virtual QImage drawPart(const quartz::Part& part);
    /// The size of `getDrawImage`, without drawing it. 0 x 0 for none.
    virtual QSizeF drawImageSize() { return sizeOf(m_image); }

    /// Renders a part of an image that lies with its lower left corner on the canvas' origin.
    static QImage renderedPart(const CIImage& image, const quartz::Part& part);

protected:
    static constexpr CIPoint kNotPlaced{-11000, -11000}; // an anchor without a place yet

    /// A new effect of the own class with nothing set.
    virtual std::shared_ptr<BaseEffect> init() const { return std::make_shared<BaseEffect>(); }

    static QSizeF sizeOf(const CIImage& image); // 0 x 0 when it is null or has no end
    /// The controller's; null without one.
    static UndoManager* undoManager();
    /// Tells the view to draw anew: by its own notification, or by the one given.
    void post(const char* notification = nullptr) const;
    virtual const char* notification() const { return "UpdateCustomView"; }

    /// Registers the call of an operation of this effect, and names the step after what it takes back.
    template <class Effect, class... Parameters, class... Arguments>
    void registerUndo(const QString& what, void (Effect::*operation)(Parameters...), Arguments... arguments)
    {
        registerUndoInvocation(what, [effect = shared_from_this(), operation, arguments...] {
            (static_cast<Effect&>(*effect).*operation)(arguments...);
        });
    }

    /// Gives the parameter that is kept in `field` what the user has chosen. Does nothing for other fields.
    void change(const void* field, EffectControl* sender);
    /// Gives it a value and shows that in the control.
    void restore(const void* field, const CIValue& value, EffectControl* sender);
    /// A parameter has got another value.
    virtual void parameterChanged(const ParameterFacts&) { }
    /// Adds the controls in their order.
    virtual void buildControls(EffectPanel& panel);
    /// What a control does; nothing when the effect is gone.
    template <class Act>
    auto action(Act act)
    {
        return [weak = weak_from_this(), act](auto... sender) {
            if (const std::shared_ptr<BaseEffect> effect = weak.lock())
                act(sender...);
        };
    }

    bool wasInit = false; // the first `getDrawImage` or `drawPart` has come
    std::string name; // shown in the list
    std::string m_tips; // one line, shown as a tooltip
    QPointer<QWidget> topControlsView;
    unsigned m_texture = 0; // 3D effects: OpenGL's number
    CIImage m_image; // the source picture
    std::array<float, 4> gTrackBallRotation{}; // 3D effects
    bool gTrackball = false; // 3D effects: the mouse turns the object
    std::array<float, 4> worldRotation{}; // 3D effects
    CIPoint m_startPT; // the anchor

private:
    const EffectParameter* parameterIn(const void* field) const;
    void changeParameter(const EffectParameter& parameter, EffectControl* sender);
    void restoreParameter(const EffectParameter* parameter, CIValue value, QPointer<EffectControl> sender);
    void registerOldValue(const EffectParameter& parameter, EffectControl* sender);
    void registerUndoInvocation(const QString& what, std::function<void()> invocation);
};
