// The rows of the current filter in the window.
#pragma once

#include "controls/panel/FilterView.h"
#include "controls/panel/LayerRows.h"

#include <QPointer>

class QScrollArea;

/// Fills a place that is scrolled with one row for each input.
class FilterPanel {
public:
    /// The Tab key comes to the rows from `before`. `master` is what they tell their changes.
    FilterPanel(QWidget& place, QScrollArea& scroller, QWidget& before, ParameterMaster& master);

    /// Below rows that are there already.
    void build(const std::shared_ptr<CIFilter>& filter, int tag);
    void clear();
    /// The same rows with the filter's present values; keyboard and scroller stay where they are. No rows without one.
    void rebuild(const std::shared_ptr<CIFilter>& filter, int tag);
    bool isEmpty() const { return (!m_view || m_view->isEmpty()) && !m_writing && !m_places; }
    /// As the look is now.
    void dress();

private:
    std::vector<QWidget*> controls() const; // from top to bottom
    LayerRows* addLayerRows(const std::shared_ptr<CIFilter>& filter, void (LayerRows::*fill)());

    QWidget& m_place;
    QScrollArea& m_scroller;
    QWidget& m_before;
    ParameterMaster& m_master;
    const OpenFolds m_openFolds = std::make_shared<std::set<std::string>>();
    QPointer<FilterView> m_view;
    QPointer<LayerRows> m_writing, m_places; // above and below the inputs' rows
};
