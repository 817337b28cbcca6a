#include "app/catalogue/CatalogueSearch.h"
#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "ui_MainWindow.h"

#include <QScopedValueRollback>

void Controller::connectLists()
{
    m_search->setSourceModel(&m_catalogue);
    listView->setModel(m_search);
    listView->expandAll();
    connectThumbnails();
    connect(listView, &OutlineView::selectionDidChange, this, [this] {
        if (!m_selectionIsOurs)
            outlineViewSelectionDidChange(*listView);
    });
    connect(listView, &OutlineView::groupClicked, this,
        [this](const OutlineItem* group) { outlineViewSelectionDidChange(*listView, group); });
    connect3D();
    connectCustom();
    connect(ui.searchField, &QLineEdit::textChanged, this, &Controller::searchFilters);
    connect(ui.searchField, &QLineEdit::returnPressed, this, &Controller::takeFirstMatch);
}

void Controller::outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked)
{
    const OutlineItem* item = clicked ? clicked : outlineView.selectedItem();
    if (filerMode() == Standard)
        outlineViewSelectionDidChange_CIF(outlineView, item);
    else if (filerMode() == ThreeD)
        outlineViewSelectionDidChange_3D(item);
    else
        outlineViewSelectionDidChange_Custom(item);
    updateMainBtnState();
    updateView();
}

void Controller::outlineViewSelectionDidChange_CIF(OutlineView& outlineView, const OutlineItem* item)
{
    if (!item) {
        clearAll();
    } else if (const auto* row = dynamic_cast<const FilterRow*>(item)) {
        clearControls();
        addFilterIndex(row->className, 111);
        m_chosenRow = row;
        updateView();
        switchOff(m_selectes_FavBtn);
        m_document.setWasChanged(true);
    } else {
        if (m_dataSource.outlineViewIsItemExpandable(item))
            outlineView.setItemExpanded(item, !outlineView.isItemExpanded(item));
        clearAll();
    }
}

void Controller::searchFilters(const QString& text)
{
    const QScopedValueRollback ours(m_selectionIsOurs, true);
    m_search->setText(text);
    listView->expandAll();
    listView->deselectAll();
    listView->selectItem(m_chosenRow);
}

void Controller::takeFirstMatch()
{
    listView->selectRow(m_search->firstMatch());
    listView->setFocus();
}
