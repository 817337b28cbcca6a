// Rows with an image well.
#include "controls/panel/CaptionLabel.h"
#include "controls/panel/DropImageView.h"
#include "controls/panel/ParameterView.h"
#include "controls/picture/PictureConversion.h"
#include "widgets/FilePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QVariant>

CIImage ParameterView::CIImageWithNSImage(const QImage& image) { return imageOfPicture(image); }

QImage ParameterView::CIImageToNSImageUsingRect(const CIImage& image, const CIRect& rect) const
{
    return pictureOfImage(image, rect);
}

void ParameterView::addWell(const QString& name)
{
    imageView = new DropImageView(this);
    imageView->setAccessibleName(name);
    place(imageView, "imageView", [](int) { return QRect(80, 0, 48, 44); });
    pushButton = new QPushButton(tr("Choose"), this);
    pushButton->setFont(rowFont(font()));
    pushButton->setProperty("mini", true);
    pushButton->setAutoDefault(false);
    pushButton->setAccessibleName(tr("Choose %1").arg(name));
    pushButton->setToolTip(tr("Opens a picture file for %1").arg(name));
    place(pushButton, "pushButton", [](int) { return QRect(135, 13, 75, 16); });
}

void ParameterView::addImageWellForFilterKeyMaster(
    const Filter& newFilter, const std::string& newKey, ParameterMaster& newMaster)
{
    begin(newFilter, newKey, newMaster);
    const QString caption = keyCaption();
    labelTextField = addCaption(caption, "labelTextField", [](int) { return QRect(0, 10, 75, 16); });
    addWell(caption);
    showValue();
    connect(imageView, &DropImageView::imageDropped, this, &ParameterView::imageWellChanged);
    connect(pushButton, &QPushButton::clicked, this, &ParameterView::pushButtonChanged);
}

void ParameterView::addImageWellForImageTagMaster(const CIImage& image, int tag, ParameterMaster& newMaster)
{
    begin(nullptr, {}, newMaster);
    dict = nullptr;
    addWell(tr("Image"));
    for (QWidget* part : {static_cast<QWidget*>(imageView), static_cast<QWidget*>(pushButton)})
        part->setProperty("tag", tag);
    imageView->setImage(thumbnailOf(image));
    connect(imageView, &DropImageView::imageDropped, this, &ParameterView::imageLayerImageWellChanged);
    connect(pushButton, &QPushButton::clicked, this, &ParameterView::imageLayerPushButtonChanged);
}

/// The well keeps what it shows if the file is no picture.
void ParameterView::takeFile(const QString& path)
{
    const QPointer<ParameterView> row(this); // may go meanwhile
    const std::optional<CIImage> image = master->readImage(path);
    if (!image || !row)
        return;
    if (*image)
        imageView->setImage(thumbnailOf(*image));
    else
        master->showReadFailure(path);
    if (filter)
        send(*image);
}

void ParameterView::imageWellChanged() { takeFile(imageView->filePath()); }

void ParameterView::chooseFile(std::function<void(const QString&)> chosen)
{
    auto* panel = new QFileDialog(this, pushButton->accessibleName());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters(master->pictureNameFilters());
    dressFilePanel(*panel);
    if (!imageView->filePath().isEmpty())
        panel->setDirectory(QFileInfo(imageView->filePath()).absolutePath());
    connect(panel, &QDialog::accepted, this, [this, panel, chosen = std::move(chosen)] {
        const QStringList files = panel->selectedFiles();
        if (!files.isEmpty()) // when the panel has gone, for reading may take long
            QMetaObject::invokeMethod(
                this, [chosen, file = files.first()] { chosen(file); }, Qt::QueuedConnection);
    });
    panel->open();
}

void ParameterView::pushButtonChanged()
{
    chooseFile([this](const QString& path) {
        imageView->setFilePath1(path);
        takeFile(path);
    });
}

void ParameterView::imageLayerImageWellChanged() { master->updateView(); }

void ParameterView::imageLayerPushButtonChanged()
{
    chooseFile([this](const QString& path) {
        imageView->setFilePath1(path);
        takeFile(path);
        master->updateView();
    });
}
