// Rows of several numbers: vectors, offsets, transforms.
#include "controls/panel/CaptionLabel.h"
#include "controls/panel/ParameterView.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <cmath>
#include <iterator>
#include <utility>

// --- vectors and offsets ---

void ParameterView::addVectorForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    addComponents(4);
}

void ParameterView::addOffsetForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    addComponents(2);
}

void ParameterView::addComponents(int count)
{
    static const char* const names[] = {
        "readout1TextField", "readout2TextField", "readout3TextField", "readout4TextField"};
    static constexpr void (ParameterView::*actions[])() = {&ParameterView::readout1TextFieldChanged,
        &ParameterView::readout2TextFieldChanged, &ParameterView::readout3TextFieldChanged,
        &ParameterView::readout4TextFieldChanged};
    static constexpr void (ParameterView::*observers[])() = {&ParameterView::readout1DidChange,
        &ParameterView::readout2DidChange, &ParameterView::readout3DidChange, &ParameterView::readout4DidChange};
    ReadoutField** const fields[] = {&readout1TextField, &readout2TextField, &readout3TextField, &readout4TextField};

    beforeDecimal = kComponentFormat.beforeDecimal;
    afterDecimal = kComponentFormat.afterDecimal;
    const QString caption = keyCaption();
    labelTextField = addCaption(caption, "labelTextField", [](int) { return QRect(0, 0, 75, 16); });
    for (int i = 0; i < count; ++i) {
        const QString name = tr("%1 %2", "parameter and X, Y, Z or W").arg(caption, QStringLiteral("XYZW").mid(i, 1));
        const auto placement = [i](int w) {
            const int field = (w - 5 - 95) / 4;
            return QRect(80 + i * (field + 5), 0, field, 16);
        };
        *fields[i] = addReadout(name, names[i], placement, true);
        connect(*fields[i], &ReadoutField::committed, this, actions[i]);
        connect(*fields[i], &QLineEdit::textEdited, this, observers[i]);
        connect(*fields[i], &ReadoutField::givenUp, this, &ParameterView::giveUpTyping);
    }
    showComponents();
}

void ParameterView::showComponents()
{
    const CIVector vector = filter->valueForKey(key).toVector();
    ReadoutField* const fields[] = {readout1TextField, readout2TextField, readout3TextField, readout4TextField};
    for (std::size_t i = 0; i < std::size(fields); ++i)
        if (fields[i])
            fields[i]->setShownText(shownText(vector.valueAtIndex(i), dataType, {beforeDecimal, afterDecimal}));
}

void ParameterView::componentTyped(std::size_t component, bool committed)
{
    ReadoutField* const fields[] = {readout1TextField, readout2TextField, readout3TextField, readout4TextField};
    ReadoutField* field = fields[component];
    if (!filter || !field)
        return;
    if (!m_changing)
        m_valueBefore = filter->valueForKey(key);
    const CIVector old = filter->valueForKey(key).toVector();
    if (const std::optional<double> typed = typedNumber(field->text())) {
        std::vector<double> values{old.X(), old.Y(), old.Z(), old.W()};
        values[component] = storedNumber(*typed, dataType);
        beginChange(); // all keys until Return are one step
        send(CIVector(std::move(values)));
        if (committed)
            field->keepTypedText();
    } else if (committed) {
        field->setShownText(shownText(old.valueAtIndex(component), dataType, {beforeDecimal, afterDecimal}));
    }
    if (committed)
        endChange();
}

void ParameterView::giveUpTyping()
{
    if (!filter || !m_changing)
        return;
    send(m_valueBefore);
    endChange();
    showComponents();
}

// --- transforms ---

namespace {

constexpr int kScaleLine = 0, kAngleLine = 1, kStretchLine = 2, kSkewLine = 3;
constexpr double kFullTurn = 6.283185307179586; // radians

bool holdsFactor(int line) { return line == kScaleLine || line == kStretchLine; }

ReadoutFormat lineFormat(int line) { return line == kAngleLine ? ReadoutFormat{3, 1} : kFactorFormat; }

CIAffineTransform transformOf(const CIValue& value)
{
    if (value.isTransform())
        return value.toTransform();
    const CIVector v = value.toVector(); // all zeros for nothing
    return {v.valueAtIndex(0), v.valueAtIndex(1), v.valueAtIndex(2), v.valueAtIndex(3), v.valueAtIndex(4),
        v.valueAtIndex(5)};
}

bool isReasonable(const CIAffineTransform& t)
{
    for (double number : {t.a, t.b, t.c, t.d})
        if (!(std::abs(number) <= kLargestTypedNumber))
            return false;
    return true;
}

} // namespace

void ParameterView::addTransformForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    usingNSAffineTransform = filter->valueForKey(key).isTransform();
    for (int line : {kScaleLine, kAngleLine, kStretchLine, kSkewLine})
        addTransformLine(line);
    scaleSlider->setRange(-kFactorSliderEnd, kFactorSliderEnd);
    angleSlider->setRange(0, kFullTurn);
    stretchSlider->setRange(-kFactorSliderEnd, kFactorSliderEnd);
    skewSlider->setRange(-kSkewSliderEnd, kSkewSliderEnd);
    for (ValueSlider* line : {scaleSlider, angleSlider, stretchSlider, skewSlider})
        line->setStandardValue(0);
    showTransform();

    connect(scaleSlider, &ValueSlider::valueChanged, this, &ParameterView::scaleSliderChanged);
    connect(angleSlider, &ValueSlider::valueChanged, this, &ParameterView::angleSliderChanged);
    connect(stretchSlider, &ValueSlider::valueChanged, this, &ParameterView::stretchSliderChanged);
    connect(skewSlider, &ValueSlider::valueChanged, this, &ParameterView::skewSliderChanged);
    connect(scaleReadoutTextField, &ReadoutField::committed, this, &ParameterView::scaleReadoutTextFieldChanged);
    connect(angleReadoutTextField, &ReadoutField::committed, this, &ParameterView::angleReadoutTextFieldChanged);
    connect(stretchReadoutTextField, &ReadoutField::committed, this, &ParameterView::stretchReadoutTextFieldChanged);
    connect(skewReadoutTextField, &ReadoutField::committed, this, &ParameterView::skewReadoutTextFieldChanged);
}

void ParameterView::addTransformLine(int line)
{
    struct Fields {
        QString caption;
        CaptionLabel** label;
        const char* labelName;
        ValueSlider** slider;
        const char* sliderName;
        ReadoutField** readout;
        const char* readoutName;
    };
    const Fields fields[] = {
        {tr("Scale"), &scaleLabelTextField, "scaleLabelTextField", &scaleSlider, "scaleSlider", &scaleReadoutTextField,
            "scaleReadoutTextField"},
        {tr("Angle"), &angleLabelTextField, "angleLabelTextField", &angleSlider, "angleSlider", &angleReadoutTextField,
            "angleReadoutTextField"},
        {tr("Stretch"), &stretchLabelTextField, "stretchLabelTextField", &stretchSlider, "stretchSlider",
            &stretchReadoutTextField, "stretchReadoutTextField"},
        {tr("Skew"), &skewLabelTextField, "skewLabelTextField", &skewSlider, "skewSlider", &skewReadoutTextField,
            "skewReadoutTextField"},
    };
    const Fields& f = fields[line];
    const int y = 51 - 17 * line;
    const QString name = tr("%1 %2", "parameter and its part, as in Transform Angle").arg(keyCaption(), f.caption);
    *f.label = addCaption(f.caption, f.labelName, [y](int) { return QRect(0, y, 75, 16); });
    *f.slider = addSlider(name, f.sliderName, [y](int w) { return QRect(80, y, w - 133, 16); });
    *f.readout = addReadout(name, f.readoutName, [y](int w) { return QRect(w - 48, y, 43, 16); });
}

ParameterView::TransformLine ParameterView::transformLine(int line)
{
    switch (line) {
    case kScaleLine:
        return {scaleSlider, scaleReadoutTextField, scaleDataType, &lastScaleFloatValue};
    case kAngleLine:
        return {angleSlider, angleReadoutTextField, angleDataType, &lastAngleFloatValue};
    case kStretchLine:
        return {stretchSlider, stretchReadoutTextField, stretchDataType, &lastStretchFloatValue};
    default:
        return {skewSlider, skewReadoutTextField, skewDataType, &lastSkewFloatValue};
    }
}

TransformParts ParameterView::lastTransformParts() const
{
    return {.scale = lastScaleFloatValue,
        .angle = lastAngleFloatValue,
        .stretch = lastStretchFloatValue,
        .skew = lastSkewFloatValue};
}

void ParameterView::showTransform()
{
    const TransformParts parts = transformParts(transformOf(filter->valueForKey(key)));
    lastScaleFloatValue = parts.scale;
    lastAngleFloatValue = parts.angle;
    lastStretchFloatValue = parts.stretch;
    lastSkewFloatValue = parts.skew;
    for (int line : {kScaleLine, kAngleLine, kStretchLine, kSkewLine})
        showTransformPart(line);
}

void ParameterView::showTransformPart(int line)
{
    const TransformLine part = transformLine(line);
    part.slider->setValue(holdsFactor(line) ? sliderPositionOfFactor(*part.last) : double(*part.last));
    part.readout->setShownText(shownText(double(*part.last), part.dataType, lineFormat(line)));
    part.slider->setValueText(part.readout->text().trimmed() + unitSign(part.dataType));
}

/// False if it makes no reasonable transform; then nothing has changed.
bool ParameterView::takeTransformPart(int line, float value)
{
    const CIAffineTransform current = transformOf(filter->valueForKey(key));
    float* const last = transformLine(line).last;
    const float before = std::exchange(*last, value);
    const CIAffineTransform t = composedTransform(lastTransformParts(), {current.tx, current.ty});
    if (!isReasonable(t)) {
        *last = before;
        return false;
    }
    if (usingNSAffineTransform)
        send(t);
    else
        send(CIVector{t.a, t.b, t.c, t.d, t.tx, t.ty});
    return true;
}

void ParameterView::transformSliderChanged(int line)
{
    const TransformLine part = transformLine(line);
    const double position = part.slider->value();
    const float value = holdsFactor(line) ? factorOfSliderPosition(position) : float(position);
    if (!filter || value == *part.last)
        return;
    takeTransformPart(line, value);
    showTransformPart(line);
}

void ParameterView::transformReadoutChanged(int line)
{
    const TransformLine part = transformLine(line);
    const std::optional<double> typed = typedNumber(part.readout->text());
    const float value = typed ? float(storedNumber(*typed, part.dataType)) : 0;
    if (!filter || !typed || (value != *part.last && !takeTransformPart(line, value)))
        part.readout->restore();
    else
        showTransformPart(line);
}
