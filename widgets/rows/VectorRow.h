// Fields for the numbers of a vector.
#pragma once

#include "widgets/rows/NumberText.h"
#include "widgets/rows/ValueRow.h"

#include <vector>

class ReadoutField;

/// The first `count` numbers of a vector. It follows every key; all keys until Return are one step of undo, and Escape
/// takes them back. A vector that was edited has four numbers, whatever it had, or `count` when that is more.
class VectorRow : public ValueRow {
    Q_OBJECT
public:
    /// `text` is how a number reads.
    VectorRow(QWidget* panel, int count, ValueBinding value, QString (*text)(double) = componentText);

    void show() override;
    /// Takes what has been typed so far into one of the fields; nothing if there is no such.
    void typed(std::size_t component);
    /// The same at the end of typing.
    void committed(std::size_t component);

    const std::vector<ReadoutField*>& readouts() const { return m_readouts; }

private:
    QString text(std::size_t component) const;
    void giveUp();

    QString (*const m_text)(double);
    std::vector<ReadoutField*> m_readouts;
    CIValue m_before; // typing began
};
