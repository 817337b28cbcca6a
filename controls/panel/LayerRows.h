// Rows beside those of the inputs: texts that are written onto the picture, and where they and second pictures lie.
#pragma once

#include "controls/panel/ParameterMaster.h"
#include "widgets/rows/ValueBinding.h"

#include <memory>
#include <vector>

#include <QWidget>

class QGridLayout;
class ValueRow;
struct NumberLook;

/// Rows of one filter in a column, as wide as the panel. Values that come from elsewhere are not noticed; the panel is
/// then built anew.
class LayerRows : public QWidget {
    Q_OBJECT
public:
    LayerRows(std::shared_ptr<CIFilter> filter, ParameterMaster& master, QWidget* parent);

    /// What is written: text or message, font, size and color, correction level.
    void addWriting();
    /// Where second pictures and what is drawn lie, and how much of the result is seen.
    void addPlaces();
    bool isEmpty() const { return m_controls.empty(); }
    /// The controls that take the keyboard, from top to bottom.
    const std::vector<QWidget*>& controls() const { return m_controls; }

protected:
    void contextMenuEvent(QContextMenuEvent*) override;

private:
    ValueBinding bind(const std::string& key);
    void addRow(const QString& caption, const QString& tip, ValueRow& row, const std::vector<QWidget*>& parts);
    void addText(const QString& caption, int lines, ValueBinding value);
    void addFont(ValueBinding value);
    void addColor(ValueBinding value);
    void addCorrectionLevel();
    void addNumber(const QString& caption, const QString& tip, const NumberLook& look, ValueBinding value);
    void addPlacing(const std::string& key, const QString& caption);
    void addPlaceButtons();
    void setPlaces(bool fits);
    void showPlaceButtons();

    std::shared_ptr<CIFilter> m_filter;
    ParameterMaster& m_master;
    QGridLayout* m_grid;
    std::vector<QWidget*> m_controls;
    std::vector<std::pair<QWidget*, ValueRow*>> m_captions;
    QWidget* m_placeButtons = nullptr; // shown while something can be moved
};
