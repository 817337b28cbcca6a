// What all rows of panels have in common.
#pragma once

#include "widgets/rows/ValueBinding.h"

#include <QWidget>

/// Keeps controls and a value together. The controls are children of the panel, which names them and says where they
/// stand; the row goes with the panel. A value that is set elsewhere is shown when `show` is called.
class ValueRow : public QObject {
    Q_OBJECT
public:
    ~ValueRow() override { endChange(); }

    virtual void show() = 0;
    /// False if the value is the standard one, or has none.
    bool canReset() const;
    /// Brings the standard value back, as one step of undo.
    void reset();

protected:
    ValueRow(QWidget* panel, ValueBinding value)
        : QObject(panel)
        , m_value(std::move(value))
    {
    }
    /// The only place where a gesture becomes one step of undo. Beginning twice, or ending what hasn't begun, does
    /// nothing.
    void beginChange();
    void endChange();
    bool isChanging() const { return m_changing; }

    const ValueBinding m_value;

private:
    bool m_changing = false;
};
