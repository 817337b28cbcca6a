#include "app/modes/FilterPanel.h"

#include "platform/foundation/Appearance.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

FilterPanel::FilterPanel(QWidget& place, QScrollArea& scroller, QWidget& before, ParameterMaster& master)
    : m_place(place)
    , m_scroller(scroller)
    , m_before(before)
    , m_master(master)
{
    (new QVBoxLayout(&m_place))->setContentsMargins({});
}

void FilterPanel::build(const std::shared_ptr<CIFilter>& filter, int tag)
{
    m_view = new FilterView(&m_place, m_openFolds);
    m_view->setFilter(filter);
    m_view->setMaster(m_master);
    m_view->setTag(tag);
    dress();
    m_view->tryFilterHeader(filter);
    m_view->tryRows();
    m_view->trimBox();
    m_view->addFilterHeaderTagEnabled(filter, tag, true);
    m_view->addRows();

    // The container grows with the rows, and its scroll area then scrolls.
    m_view->setMinimumHeight(m_view->isEmpty() ? 0 : m_view->contentHeight());
    m_writing = addLayerRows(filter, &LayerRows::addWriting);
    m_place.layout()->addWidget(m_view);
    m_view->show();
    m_places = addLayerRows(filter, &LayerRows::addPlaces);
    if (m_writing || m_places) {
        static_cast<QVBoxLayout*>(m_place.layout())->addStretch(1);
        dress();
    }

    QWidget* before = &m_before;
    for (QWidget* control : controls())
        QWidget::setTabOrder(std::exchange(before, control), control);
}

/// Null when the filter has no such rows.
LayerRows* FilterPanel::addLayerRows(const std::shared_ptr<CIFilter>& filter, void (LayerRows::*fill)())
{
    auto* rows = new LayerRows(filter, m_master, &m_place);
    (rows->*fill)();
    if (rows->isEmpty()) {
        delete rows;
        return nullptr;
    }
    m_place.layout()->addWidget(rows);
    rows->show();
    return rows;
}

std::vector<QWidget*> FilterPanel::controls() const
{
    std::vector<QWidget*> all;
    const auto append = [&](const std::vector<QWidget*>& more) { all.insert(all.end(), more.begin(), more.end()); };
    if (m_writing)
        append(m_writing->controls());
    if (m_view)
        append(m_view->controls());
    if (m_places)
        append(m_places->controls());
    return all;
}

void FilterPanel::clear()
{
    while (QWidget* row = m_place.findChild<QWidget*>({}, Qt::FindDirectChildrenOnly))
        delete row;
    while (const QLayoutItem* room = m_place.layout()->takeAt(0))
        delete room;
}

void FilterPanel::rebuild(const std::shared_ptr<CIFilter>& filter, int tag)
{
    const std::vector<QWidget*> former = controls();
    const auto focused =
        std::size_t(std::find(former.begin(), former.end(), m_place.window()->focusWidget()) - former.begin());
    const bool hadFocus = focused < former.size();
    const int scrolled = m_scroller.verticalScrollBar()->value();

    clear();
    if (filter)
        build(filter, tag);

    const std::vector<QWidget*> now = controls();
    if (hadFocus && focused < now.size())
        now[focused]->setFocus(Qt::OtherFocusReason);
    m_scroller.verticalScrollBar()->setValue(scrolled);
}

void FilterPanel::dress()
{
    const bool isAlone = !m_writing && !m_places; // with rows above or below, the line would part them
    if (m_view)
        m_view->setBorderColor(isAlone ? Appearance::shared().look().separator : QColor(Qt::transparent));
}
