#include "app/catalogue/FilterCatalogue.h"

#include "app/catalogue/FilterMaker.h"
#include "app/catalogue/OutlineView.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/UserDefaults.h"

#include <QAction>

namespace {

const QString kThumbnailsKey = QStringLiteral("FilterThumbnails");

} // namespace

FilterCatalogue::FilterCatalogue(OutlineView& list, QAction& thumbnails, FilterMaker& filters)
    : m_list(list)
    , m_thumbnails(thumbnails)
    , m_filters(filters)
    , m_rows(m_dataSource, {DataSource::kTitleColumn, DataSource::kMarkerColumn})
    , m_pictures([this](const QString& name, const CIImage& picture) { return pictureOf(name, picture); })
{
    m_search.setSourceModel(&m_rows);
    m_list.setModel(&m_search);
    m_list.expandAll();
    connect(&m_pictures, &CataloguePictures::pictureReady, m_list.viewport(), qOverload<>(&QWidget::update));
    m_thumbnails.setChecked(UserDefaults::standardUserDefaults().objectForKey(kThumbnailsKey).toBool());
    showThumbnails();
}

void FilterCatalogue::selectClass(const QString& className)
{
    m_chosenRow = m_dataSource.rowForClass(className);
    m_list.selectItem(m_chosenRow);
}

void FilterCatalogue::toggle(const OutlineItem* group)
{
    if (m_dataSource.outlineViewIsItemExpandable(group))
        m_list.setItemExpanded(group, !m_list.isItemExpanded(group));
}

void FilterCatalogue::searchFilters(const QString& text)
{
    const QSignalBlocker ours(m_list); // rows that go away choose nothing
    m_search.setText(text);
    m_list.expandAll();
    m_list.deselectAll();
    m_list.selectItem(m_chosenRow);
}

void FilterCatalogue::takeFirstMatch()
{
    m_list.selectRow(m_search.firstMatch());
    m_list.setFocus();
}

// --- pictures ---

/// On so small a picture, the view's middle is the picture's.
CIImage FilterCatalogue::pictureOf(const QString& filterName, const CIImage& picture)
{
    const CIRect extent = picture.extent();
    const std::shared_ptr<CIFilter> filter = m_filters.newFilter(filterName.toStdString(), picture, extent);
    return filter ? filteredPicture(*filter, picture, {extent.width, extent.height}) : CIImage();
}

void FilterCatalogue::setPicture(const CIImage& picture)
{
    m_picture = picture;
    m_pictures.setPicture(m_thumbnails.isChecked() ? picture : CIImage());
}

void FilterCatalogue::thumbnailsToggled()
{
    UserDefaults::standardUserDefaults().setObjectForKey(m_thumbnails.isChecked(), kThumbnailsKey);
    showThumbnails();
}

/// As the menu item says.
void FilterCatalogue::showThumbnails()
{
    setPicture(m_picture);
    m_list.setPictures(!m_thumbnails.isChecked() ? OutlineView::Pictures() : [this](const OutlineItem* item) {
        const auto* row = dynamic_cast<const FilterRow*>(item);
        return row ? m_pictures.pictureFor(row->className) : QImage();
    });
}
