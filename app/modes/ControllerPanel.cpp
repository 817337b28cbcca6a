// The panel of the current filter.
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/panel/BezelStyle.h"
#include "controls/panel/FilterNames.h"
#include "controls/panel/FilterView.h"
#include "controls/picture/ControlPoints.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/Log.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

void Controller::updateFilterControls(int tag)
{
    if (currentFilter)
        buildPanel(tag);
    showFilterName(currentFilter != nullptr);
}

void Controller::buildPanel(int tag)
{
    auto* panel = new FilterView(placeCntrlView);
    panel->setFilter(currentFilter);
    panel->setMaster(*this);
    panel->setTag(tag);
    panel->setBorderColor(Appearance::shared().look().separator);
    panel->tryFilterHeader(currentFilter);
    panel->tryRows();
    panel->trimBox();
    panel->addFilterHeaderTagEnabled(currentFilter, tag, true);
    panel->addRows();

    // The container grows with the rows, and its scroll area then scrolls.
    panel->setMinimumHeight(panel->rowCount() > 0 ? panel->contentHeight() : 0);
    if (!placeCntrlView->layout())
        (new QVBoxLayout(placeCntrlView))->setContentsMargins({});
    placeCntrlView->layout()->addWidget(panel);
    panel->show();
    m_panel = panel;

    QWidget* before = ui.pictureScrollView->viewport();
    for (QWidget* control : panel->controls())
        QWidget::setTabOrder(std::exchange(before, control), control);
}

/// The same panel with the filter's present values; keyboard and scroller stay where they are.
void Controller::rebuildPanel()
{
    std::size_t focused = 0;
    std::vector<QWidget*> controls = m_panel ? m_panel->controls() : std::vector<QWidget*>();
    while (focused < controls.size() && controls[focused] != m_window.focusWidget())
        ++focused;
    const bool hadFocus = focused < controls.size();
    const int scrolled = ui.controlScrollArea->verticalScrollBar()->value();

    clearControls();
    updateFilterControls(111);

    controls = m_panel ? m_panel->controls() : std::vector<QWidget*>();
    if (hadFocus && focused < controls.size())
        controls[focused]->setFocus(Qt::OtherFocusReason);
    ui.controlScrollArea->verticalScrollBar()->setValue(scrolled);
}

void Controller::clearControls()
{
    while (QWidget* row = placeCntrlView->findChild<QWidget*>({}, Qt::FindDirectChildrenOnly))
        delete row;
    showFilterName(false);
}

/// The name above the rows, and a hint where there are none.
void Controller::showFilterName(bool shown)
{
    if (filerMode() == ThreeD)
        return show3DEffectName();
    if (filerMode() == Custom)
        return showCustomEffectName();
    if (currentFilter)
        ui.filterNameField->setText(shownFilterName(currentFilter->displayName()));
    ui.filterNameField->setVisible(shown);
    ui.filterNameLine->setVisible(shown);
    const bool empty = !m_panel || m_panel->rowCount() == 0;
    ui.filterHintField->setVisible(filerMode() == Standard && (!shown || empty));
    if (!shown)
        ui.filterHintField->setText(tr("Choose a filter from the list to see what it makes of the picture."));
    else if (empty)
        ui.filterHintField->setText(
            isControlsPresent() ? tr("Drag the points on the picture.") : tr("There is nothing to set here."));
}

bool Controller::isControlsPresent()
{
    if (!currentFilter)
        return false;
    const std::vector<std::string> keys = currentFilter->inputKeys();
    return std::any_of(keys.begin(), keys.end(), [this](const std::string& key) {
        const CIInputAttributes* input = currentFilter->attributesForKey(key);
        return input && hasControlPoint(*input);
    });
}

void Controller::changeControlsStyle(QWidget* view)
{
    for (QWidget* subview : view->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        changeControlsStyle(subview);
    if (auto* button = qobject_cast<QAbstractButton*>(view); button && bezelStyle(*button) == BezelStyle::Rounded)
        setBezelStyle(*button, BezelStyle::TexturedSquare);
    qCInfo(lumivexLog, "class=%s", view->metaObject()->className());
}
