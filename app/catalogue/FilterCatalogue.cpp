#include "app/catalogue/FilterCatalogue.h"

#include "app/catalogue/FilterGrid.h"
#include "app/catalogue/FilterMaker.h"
#include "app/catalogue/OutlineView.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/UserDefaults.h"

#include <QAction>

namespace {

const QString kThumbnailsKey = QStringLiteral("FilterThumbnails"), kColumnsKey = QStringLiteral("FilterColumns");

} // namespace

FilterCatalogue::FilterCatalogue(OutlineView& list, FilterGrid& grid, Choices choices, FilterMaker& filters)
    : m_list(list)
    , m_grid(grid)
    , m_choices(choices)
    , m_filters(filters)
    , m_rows(m_dataSource, {DataSource::kTitleColumn, DataSource::kMarkerColumn})
    , m_pictures([this](const QString& name, const CIImage& picture) { return pictureOf(name, picture, false); },
          [this](const QString& name, const CIImage& picture) { return pictureOf(name, picture, true); })
{
    m_search.setSourceModel(&m_rows);
    m_list.setModel(&m_search);
    m_list.expandAll();
    m_grid.follow(m_list);
    for (QWidget* viewport : {m_list.viewport(), m_grid.viewport()})
        connect(&m_pictures, &CataloguePictures::pictureReady, viewport, qOverload<>(&QWidget::update));
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    const QVariant thumbnails = defaults.objectForKey(kThumbnailsKey);
    m_choices.thumbnails.setChecked(!thumbnails.isValid() || thumbnails.toBool());
    m_choices.columns.setChecked(m_choices.thumbnails.isChecked() && defaults.objectForKey(kColumnsKey).toBool());
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

/// What a click gives, or null for a filter whose values fit anyway.
CIImage FilterCatalogue::pictureOf(const QString& filterName, const CIImage& picture, bool isFitted)
{
    const CIRect extent = picture.extent();
    const std::shared_ptr<CIFilter> filter = m_filters.newFilter(filterName.toStdString(), picture, extent);
    if (!filter || (isFitted && m_filters.startsFitted))
        return {};
    if (isFitted)
        fitToPicture(*filter, picture);
    return filteredPicture(*filter, picture, {extent.width, extent.height});
}

void FilterCatalogue::setPicture(const CIImage& picture)
{
    m_picture = picture;
    m_pictures.setPicture(m_choices.thumbnails.isChecked() ? picture : CIImage());
}

/// Columns are made of thumbnails.
void FilterCatalogue::thumbnailsToggled()
{
    if (!m_choices.thumbnails.isChecked())
        m_choices.columns.setChecked(false);
    showThumbnails();
}

void FilterCatalogue::columnsToggled()
{
    if (m_choices.columns.isChecked())
        m_choices.thumbnails.setChecked(true);
    showThumbnails();
}

/// As the menu items say, from now on.
void FilterCatalogue::showThumbnails()
{
    const bool hasThumbnails = m_choices.thumbnails.isChecked(), hasColumns = m_choices.columns.isChecked();
    UserDefaults::standardUserDefaults().setObjectForKey(hasThumbnails, kThumbnailsKey);
    UserDefaults::standardUserDefaults().setObjectForKey(hasColumns, kColumnsKey);
    setPicture(m_picture);
    const OutlineView::Pictures pictures = [this](const OutlineItem* item) {
        const auto* row = dynamic_cast<const FilterRow*>(item);
        return row ? m_pictures.pictureFor(row->className) : QImage();
    };
    m_list.setPictures(hasThumbnails ? pictures : OutlineView::Pictures());
    m_grid.setPictures(pictures);
    const bool hadFocus = m_list.hasFocus() || m_grid.hasFocus();
    m_list.setVisible(!hasColumns);
    m_list.setFocusProxy(hasColumns ? &m_grid : nullptr); // who goes to the list goes to what stands in its place
    m_grid.setVisible(hasColumns);
    if (hadFocus)
        m_list.setFocus();
}
