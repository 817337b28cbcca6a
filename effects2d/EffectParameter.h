// What can be set on an effect. Each parameter is said once: reading, storing, copying, undo, the control and the
// redraw follow from its declaration.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <array>
#include <functional>
#include <optional>

class BaseEffect;

/// In the panel. English, of the context "EffectPanel".
struct ParameterText {
    const char* label = nullptr; // the caption; without one there is no control
    const char* tip = nullptr;
    const char* noun = nullptr; // names the undo step where the label doesn't
};

/// What else is known of a parameter.
struct ParameterFacts {
    enum Redraw { Layer, Composite };
    enum Storage { AllNumbers = -1, NotStored = 0 };
    struct States {
        double off, on;
    };

    CIValue start = 0; // of prototypes; nothing when another parameter says it
    double min = 0, max = 1; // of the slider
    int decimals = 0; // of the readout, and of the steps
    bool continuous = true; // acts while it is moved, not only when it is let go
    bool startsWhole = false; // the slider first stands at the whole part of the value
    std::vector<const char*> titles{}; // the choices of a number that is an index
    std::optional<States> states{}; // a number that is a switch
    bool beside = false; // the control stands on the row of the one before, without a caption
    Redraw redraw = Layer;
    const char* undoneTells = nullptr; // posted when a change is taken back, instead of the effect's notification
    int storage = AllNumbers; // how many of its numbers are stored
    bool copied = true;
};

/// A number, a boolean, a color or a short row of numbers.
class EffectParameter {
public:
    enum class Kind { Slider, Switch, PopUp, ColorWell };

    /// `key` is that of stored dictionaries. Rows of numbers are stored as "key0", "key1" …
    template <class Effect, class T>
    EffectParameter(std::string key, T Effect::*member, ParameterText text, ParameterFacts facts)
        : EffectParameter(
            std::move(key), text,
            std::move(facts), [member](auto& effect) -> auto& { return like<Effect>(effect).*member; })
    {
    }
    /// One number of a row. The parameter of the row starts, stores and copies it.
    template <class Effect, class T, std::size_t N>
    EffectParameter(std::array<T, N> Effect::*member, std::size_t index, ParameterText text, ParameterFacts facts)
        : EffectParameter(
            {}, text, std::move(facts), [=](auto& effect) -> auto& { return (like<Effect>(effect).*member)[index]; })
    {
        this->facts.start = CIValue();
        this->facts.storage = ParameterFacts::NotStored;
        this->facts.copied = false;
    }

    void read(BaseEffect& effect, const CIDictionary& dictionary) const;
    void save(const BaseEffect& effect, CIDictionary& dictionary) const;

    Kind kind() const;
    /// What the control shows for a value, and the value for what has been chosen with it.
    CIValue shown(const CIValue& value) const;
    CIValue chosen(const CIValue& shown) const;

    ParameterText text;
    ParameterFacts facts;
    std::function<CIValue(const BaseEffect&)> value;
    std::function<void(BaseEffect&, const CIValue&)> setValue;
    std::function<const void*(const BaseEffect&)> field;

private:
    template <class Access>
    EffectParameter(std::string key, ParameterText text, ParameterFacts facts, Access access)
        : text(text)
        , facts(std::move(facts))
        , value([access](const BaseEffect& effect) { return valueOf(access(effect)); })
        , setValue([access](BaseEffect& effect, const CIValue& value) { take(access(effect), value); })
        , field([access](const BaseEffect& effect) -> const void* { return &access(effect); })
        , m_key(std::move(key))
    {
    }

    template <class Effect>
    static Effect& like(BaseEffect& effect)
    {
        return static_cast<Effect&>(effect);
    }
    template <class Effect>
    static const Effect& like(const BaseEffect& effect)
    {
        return static_cast<const Effect&>(effect);
    }

    template <class T>
    static CIValue valueOf(const T& field)
    {
        return field;
    }
    template <class T, std::size_t N>
    static CIValue valueOf(const std::array<T, N>& field)
    {
        return CIVector(std::vector<double>(field.begin(), field.end()));
    }

    static void take(bool& field, const CIValue& value) { field = value.toBool(); }
    static void take(float& field, const CIValue& value) { field = value.toFloat(); }
    static void take(double& field, const CIValue& value) { field = value.toDouble(); }
    static void take(CIColor& field, const CIValue& value) { field = value.toColor(); }
    /// Cut to whole numbers, and to what can be drawn in a lifetime: stored dictionaries may hold anything.
    static void take(int& field, const CIValue& value);
    template <class T, std::size_t N>
    static void take(std::array<T, N>& field, const CIValue& value)
    {
        const CIVector numbers = value.toVector();
        for (std::size_t i = 0; i < N; ++i)
            field[i] = T(numbers.valueAtIndex(i));
    }

    std::string m_key;
};

/// All that sets a class of effects apart besides its drawing.
struct EffectDeclaration {
    const char* className; // in stored dictionaries
    const char* name; // shown in the list; English, of the context "BaseEffect", as the next
    const char* tips; // one line, shown as a tooltip
    CIPoint startPoint{}; // where the anchor of prototypes is
    std::vector<EffectParameter> parameters{}; // in the order of the panel
    const char* hint = nullptr; // above the panel, if there is something to say
};
