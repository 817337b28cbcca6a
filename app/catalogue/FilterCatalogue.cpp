#include "app/catalogue/FilterCatalogue.h"

#include "app/catalogue/FilterGrid.h"
#include "app/catalogue/FilterMaker.h"
#include "app/catalogue/OutlineView.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/UserDefaults.h"

#include <QAction>
#include <QMenu>

namespace {

const QString kThumbnailsKey = QStringLiteral("FilterThumbnails"), kColumnsKey = QStringLiteral("FilterColumns");
const QString kPinnedKey = QStringLiteral("PinnedFilters"), kRecentKey = QStringLiteral("RecentFilters");
constexpr qsizetype kMostRecent = 5;

QString classOf(const OutlineItem* item)
{
    const auto* row = dynamic_cast<const FilterRow*>(item);
    return row ? row->className : QString();
}

} // namespace

FilterCatalogue::FilterCatalogue(OutlineView& list, FilterGrid& grid, Choices choices, FilterMaker& filters)
    : m_list(list)
    , m_grid(grid)
    , m_choices(choices)
    , m_filters(filters)
    , m_shown(m_dataSource)
    , m_rows(m_shown, {DataSource::kTitleColumn, DataSource::kMarkerColumn})
    , m_pictures([this](const QString& name, const CIImage& picture) { return pictureOf(name, picture, false); },
          [this](const QString& name, const CIImage& picture) { return pictureOf(name, picture, true); })
{
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    m_pinned = defaults.objectForKey(kPinnedKey).toStringList();
    m_recent = defaults.objectForKey(kRecentKey).toStringList();
    m_shown.setOnTop(m_pinned, m_recent);
    m_list.setModel(&m_rows);
    m_list.expandAll();
    m_list.setStars([this](const OutlineItem* item) {
        const QString className = classOf(item);
        return className.isEmpty() ? std::nullopt : std::optional(m_pinned.contains(className));
    });
    m_list.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_list, &OutlineView::starClicked, this, [this](const OutlineItem* row) { togglePinned(classOf(row)); });
    connect(&m_list, &QWidget::customContextMenuRequested, this, &FilterCatalogue::showContextMenu);
    m_grid.follow(m_list);
    for (QWidget* viewport : {m_list.viewport(), m_grid.viewport()})
        connect(&m_pictures, &CataloguePictures::pictureReady, viewport, qOverload<>(&QWidget::update));
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

bool FilterCatalogue::clicked(const OutlineItem* row)
{
    const auto* effect = dynamic_cast<const EffectLink*>(row);
    if (effect && effect->look)
        emit lookAsked(effect->look);
    else if (effect)
        emit effectAsked(effect->className);
    else if (m_shown.outlineViewIsItemExpandable(row))
        m_list.setItemExpanded(row, !m_list.isItemExpanded(row));
    return effect;
}

void FilterCatalogue::searchFilters(const QString& text)
{
    m_shown.search(text);
    m_rows.reloadData();
    m_list.expandAll();
    m_list.selectItem(m_chosenRow);
    if (m_shown.isSearching())
        m_list.scrollToTop();
}

void FilterCatalogue::takeFirstMatch()
{
    if (m_shown.isNear())
        return m_list.enter();
    m_list.takeRow(m_rows.index(0, 0, m_rows.index(0, 0)));
    m_list.setFocus();
}

// --- on top ---

void FilterCatalogue::togglePinned(const QString& className)
{
    if (m_pinned.removeAll(className) == 0)
        m_pinned.append(className);
    UserDefaults::standardUserDefaults().setObjectForKey(m_pinned, kPinnedKey);
    showOnTop();
}

void FilterCatalogue::noteUsed(const QString& className)
{
    m_recent.removeAll(className);
    m_recent.prepend(className);
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
    UserDefaults::standardUserDefaults().setObjectForKey(m_recent, kRecentKey);
    showOnTop();
}

void FilterCatalogue::showOnTop()
{
    const auto fill = [this] {
        m_shown.setOnTop(m_pinned, m_recent);
        m_rows.reloadData();
    };
    m_list.refill(fill, m_list.selectedItem() ? m_chosenRow : nullptr);
}

void FilterCatalogue::showContextMenu(const QPoint& place)
{
    const QModelIndex under = m_list.indexAt(place);
    const QModelIndex row = under.isValid() ? under : m_list.currentIndex();
    const QString className = classOf(row.data(OutlineModel::ItemRole).value<const OutlineItem*>());
    if (className.isEmpty())
        return;
    QMenu menu(&m_list);
    menu.addAction(m_pinned.contains(className) ? tr("Unpin") : tr("Pin to the Top"), this,
        [this, className] { togglePinned(className); });
    menu.exec(m_list.viewport()->mapToGlobal(place));
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
