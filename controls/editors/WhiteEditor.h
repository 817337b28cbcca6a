// Temperature and tint of the light in which a picture was taken.
#pragma once

#include "controls/editors/InputEditor.h"

class NumberRow;
class QGridLayout;
class QPushButton;

/// Sliders for both numbers of the first white of the filter, and an eyedropper: what is clicked in the picture becomes
/// grey. A higher temperature makes the picture warmer, a higher tint more magenta.
class WhiteEditor : public InputEditor {
    Q_OBJECT
public:
    WhiteEditor(const EditedInput& input, QWidget* parent);

    void showValues() override;

private:
    NumberRow* addNumber(QGridLayout& grid, int line, const QString& caption, std::size_t component);
    void pick();
    void takeGrey(CIPoint place);

    const std::string m_key, m_targetKey;
    NumberRow *m_temperature = nullptr, *m_tint = nullptr;
    QPushButton* m_eyedropper;
};
