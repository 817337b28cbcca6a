// The panel in which the size of the picture is typed.
#pragma once

#include "platform/coreimage/CIVector.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// What the panel needs from the controller.
class ResizeMaster {
public:
    virtual ~ResizeMaster() = default;
    virtual CIRect getBgImageExtent() const = 0; // of the source picture, px; empty without one
    virtual void resizeImageHeight(float width, float height) = 0; // px
};

/// Floats beside the window. Sizes are typed in one of six units; the picture's own size is kept in pixels, so that
/// changing the unit loses nothing.
class ResizePanel : public QDialog {
    Q_OBJECT

public:
    /// Tags of the unit menu.
    enum Measure { Pixels = 1, Percent = 2, Inches = 3, Millimeters = 4, Centimeters = 5, Picas = 6 };

    ResizePanel(QWidget* window, ResizeMaster& master);
    ~ResizePanel() override;

    void awakeFromNib();
    /// Tells the shared panel (the first that was made) that the picture has another size, in pixels.
    static void setWHH(float width, float height);
    void makeKeyAndOrderFront();

    /// Points, which are pixels, per unit.
    static float getDiv(int tag);
    /// A value in the current unit in pixels.
    float toPoint(float value) const { return value * getDiv(mMeasurement); }
    int getMeasures() const; // the selected unit

    void resize();
    void cancel();
    void changeMeasurements();
    void widthChanged() { } // the fields tell when editing ends
    void heightChanged() { }
    void controlTextDidEndEditing(QLineEdit* field);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void takeWHH(float w, float h);
    void selectPixels();
    float floatValue(const QLineEdit* field) const;
    void setFloatValue(QLineEdit* field, float value);
    bool keepsProportions() const;

    ResizeMaster* controller;
    float width = 0, height = 0; // of the source picture, px
    int mMeasurement = Pixels;
    bool wasChanged = false; // by the user, since the size was last set
    QLineEdit *mWidth, *mHeight;
    QLabel* mCaptionInfo;
    QCheckBox* mPropBtn;
    QComboBox* mMeasurePopup;
};
