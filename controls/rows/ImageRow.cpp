#include "controls/rows/ImageRow.h"

#include "controls/panel/DropImageView.h"
#include "controls/picture/PictureConversion.h"
#include "widgets/FilePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>

ImageRow::ImageRow(QWidget* panel, PictureSource& source, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , well(new DropImageView(panel))
    , button(new QPushButton(panel))
    , m_source(source)
{
    button->setAutoDefault(false);
    connect(well, &DropImageView::imageDropped, this, &ImageRow::fileDropped);
    connect(button, &QPushButton::clicked, this, &ImageRow::chooseFile);
    show();
}

void ImageRow::show() { well->setImage(thumbnailOf(m_value.get().toImage())); }

void ImageRow::fileDropped()
{
    const QString path = well->filePath();
    m_source.readImage(path, [this, path, row = QPointer<ImageRow>(this)](const CIImage& image) {
        if (!row)
            return; // it has gone meanwhile
        if (image)
            well->setImage(thumbnailOf(image));
        else
            m_source.showReadFailure(path);
        m_value.set(image);
    });
}

void ImageRow::chooseFile()
{
    auto* panel = new QFileDialog(button->parentWidget(), button->accessibleName());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters(m_source.pictureNameFilters());
    dressFilePanel(*panel);
    if (!well->filePath().isEmpty())
        panel->setDirectory(QFileInfo(well->filePath()).absolutePath());
    connect(panel, &QDialog::accepted, this, [this, panel] {
        if (panel->selectedFiles().isEmpty())
            return;
        well->setFilePath1(panel->selectedFiles().first());
        // When the panel has gone, for reading may take long.
        QMetaObject::invokeMethod(this, &ImageRow::fileDropped, Qt::QueuedConnection);
    });
    panel->open();
}
