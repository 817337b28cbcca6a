// One control of an effect's panel.
#pragma once

#include "effects2d/EffectParameter.h"
#include "widgets/rows/ValueBinding.h"

#include <QWidget>

class ValueRow;

/// A row of the kind that suits a parameter. Holds what the row shows: a number, a boolean, a color, or the index of a
/// choice. The first value shown is the standard one.
class EffectControl : public QWidget {
    Q_OBJECT
public:
    EffectControl(const EffectParameter& parameter, const CIValue& value, QWidget* parent);
    ~EffectControl() override;

    CIValue value() const { return m_value; }
    /// Shows a value without telling anybody.
    void setValue(const CIValue& value);

signals:
    /// The user has changed the value, or tries one; then nothing that is registered for undo counts.
    void changed();

private:
    ValueRow* newRow(const EffectParameter& parameter, ValueBinding binding);
    void take(const CIValue& value);
    void addToRow(QWidget* widget, const ParameterText& text);

    CIValue m_value;
    ValueRow* m_row = nullptr;
};
