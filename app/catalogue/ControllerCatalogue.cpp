#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

namespace {

const QString kThumbnailsKey = QStringLiteral("FilterThumbnails");

} // namespace

void Controller::connectThumbnails()
{
    m_cataloguePictures = new CataloguePictures(
        [this](const QString& name, const CIImage& picture) {
            const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name.toStdString());
            if (!filter)
                return CIImage();
            filter->setDefaults();
            setupAllImageInputsToNotNil(*filter, picture);
            setAutomaticDefaults(*filter);
            const CIRect extent = picture.extent();
            if (name == QStringLiteral("CICircularWrap")) // stands in the middle of the view, which is not this small
                filter->setValueForKey(
                    CIVector{extent.x + extent.width / 2, extent.y + extent.height / 2}, "inputCenter");
            return filteredPicture(*filter, picture, {extent.width, extent.height});
        },
        this);
    connect(m_cataloguePictures, &CataloguePictures::pictureReady, listView->viewport(), qOverload<>(&QWidget::update));
    ui.actionThumbnails->setChecked(UserDefaults::standardUserDefaults().objectForKey(kThumbnailsKey).toBool());
    showThumbnails();
}

void Controller::thumbnailsToggled()
{
    UserDefaults::standardUserDefaults().setObjectForKey(ui.actionThumbnails->isChecked(), kThumbnailsKey);
    showThumbnails();
}

void Controller::updateThumbnails()
{
    m_cataloguePictures->setPicture(ui.actionThumbnails->isChecked() ? m_document.picture() : CIImage());
}

/// As the menu item says.
void Controller::showThumbnails()
{
    const bool shown = ui.actionThumbnails->isChecked();
    updateThumbnails();
    listView->setPictures(!shown ? OutlineView::Pictures() : [this](const OutlineItem* item) {
        const auto* row = dynamic_cast<const FilterRow*>(item);
        return row ? m_cataloguePictures->pictureFor(row->className) : QImage();
    });
}
