#include "widgets/FilePanel.h"

#include "platform/foundation/TintedIcon.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>

namespace {

void nameParts(QFileDialog& panel)
{
    const std::pair<const char*, const char*> captions[] = {
        {"lookInLabel", "lookInCombo"},
        {"fileTypeLabel", "fileTypeCombo"},
    };
    for (const auto& [label, menu] : captions)
        if (auto* caption = panel.findChild<QLabel*>(QLatin1String(label)))
            caption->setBuddy(panel.findChild<QWidget*>(QLatin1String(menu)));
}

void setIcons(QFileDialog& panel)
{
    const std::pair<const char*, const char*> icons[] = {
        {"backButton", "chevron-left"},
        {"forwardButton", "chevron-right"},
        {"toParentButton", "chevron-up"},
        {"newFolderButton", "add"},
    };
    for (const auto& [name, icon] : icons)
        if (auto* button = panel.findChild<QToolButton*>(QLatin1String(name))) {
            button->setIcon(tintedIcon(QLatin1String(icon)));
            button->setAutoRaise(true);
        }
    if (auto* buttons = panel.findChild<QDialogButtonBox*>())
        for (QAbstractButton* button : buttons->buttons())
            button->setIcon({});
}

void layOutList(QFileDialog& panel)
{
    panel.setViewMode(QFileDialog::Detail);
    for (const char* name : {"listModeButton", "detailModeButton"}) // there is only one way of listing
        if (auto* button = panel.findChild<QWidget*>(QLatin1String(name)))
            button->hide();
    if (auto* splitter = panel.findChild<QSplitter*>())
        splitter->setSizes({140, 600});
    if (auto* list = panel.findChild<QTreeView*>()) {
        list->header()->setStretchLastSection(false);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        for (const int column : {1, 3})
            list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        list->hideColumn(2); // it tells the kind of file, as the name's extension does
    }
}

} // namespace

void dressFilePanel(QFileDialog& panel)
{
    panel.setOption(QFileDialog::HideNameFilterDetails);
    panel.resize(760, 520);
    nameParts(panel);
    setIcons(panel);
    layOutList(panel);
}
