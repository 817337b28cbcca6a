// The panel in which the picture is set upright.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "widgets/Overlay.h"

class PanelCheckBox;
class QDoubleSpinBox;
class StraightenCanvas;
class ValueSlider;

class StraightenPanel : public Overlay {
    Q_OBJECT

public:
    /// The picture has an end and isn't empty.
    StraightenPanel(QWidget* page, const CIImage& picture);

    double angle() const; // radians, counterclockwise
    /// Whether the empty corners are cut off.
    bool fills() const;

private:
    void setDegrees(double degrees);
    void chooseRange();

    StraightenCanvas* m_canvas;
    ValueSlider* m_slider; // in degrees
    QDoubleSpinBox* m_degrees;
    PanelCheckBox *m_fine, *m_fills;
};
