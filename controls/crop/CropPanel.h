// The panel in which the picture is cut.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "widgets/Overlay.h"

class CropCanvas;
class PanelCheckBox;
class QComboBox;
class QSpinBox;

class CropPanel : public Overlay {
    Q_OBJECT

public:
    /// The picture has an end and isn't empty.
    CropPanel(QWidget* page, const CIImage& picture);

    /// Picture pixels, origin in the picture's lower left corner.
    CIRect crop() const;

private:
    void buildShapes();
    void buildSize();
    void chooseProportions();
    void showSize();
    void sizeTyped(bool isWidth);
    void reset();

    CropCanvas* m_canvas;
    QComboBox* m_shape;
    PanelCheckBox* m_upright;
    QSpinBox *m_width, *m_height;
};
