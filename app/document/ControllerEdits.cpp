#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "effects2d/customEffImageView.h"
#include "ui_MainWindow.h"

/// Slider and field, which belong to the modes with a canvas.
void Controller::showZoomOfMode()
{
    ui.zoomSlider->setEnabled(m_zooming.isPossible());
    ui.zoomSuperView->setVisible(m_zooming.isPossible());
    if (m_zooming.isPossible())
        m_zooming.layOut();
    else
        updateView();
}
