// A slider with a readout.
#pragma once

#include "widgets/rows/NumberText.h"
#include "widgets/rows/ValueRow.h"

class ReadoutField;
class ValueSlider;

/// A number, of float's precision. The slider acts while it is dragged, and all of a drag is one step of undo. A typed
/// number is taken beyond the slider's ends, which may make room, and stays as it was typed, unless the look has steps.
/// What is no number, or beyond reason, changes nothing, and neither does a number that is there already.
class NumberRow : public ValueRow {
    Q_OBJECT
public:
    NumberRow(QWidget* panel, const NumberLook& look, ValueBinding value);

    void show() override;
    /// Takes what the slider says.
    void sliderMoved();
    /// Takes what has been typed.
    void readoutTyped();

    ValueSlider* const slider;
    ReadoutField* const readout;

private:
    double sliderNumber() const;
    bool change(double number);
    void makeRoomFor(double number);
    void showText(const QString& text);

    const NumberLook m_look;
};
