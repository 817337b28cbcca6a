// An image well with a button to choose a file.
#pragma once

#include "controls/rows/PictureSource.h"
#include "widgets/rows/ValueRow.h"

class DropImageView;
class QPushButton;

/// An image of a file that is dropped or chosen. A file that is no picture sets nothing as the value, and the well
/// keeps what it shows; one whose reading the user stops changes nothing.
class ImageRow : public ValueRow {
    Q_OBJECT
public:
    ImageRow(QWidget* panel, PictureSource& source, ValueBinding value);

    void show() override;
    /// Takes the file that the well was given.
    void fileDropped();
    /// Lets the user choose one. The open panel is called as the button is for assistive technology.
    void chooseFile();

    DropImageView* const well;
    QPushButton* const button;

private:
    PictureSource& m_source;
};
