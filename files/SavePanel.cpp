#include "files/SavePanel.h"

#include "platform/foundation/TintedIcon.h"
#include "widgets/FilePanel.h"

SavePanel::SavePanel(QWidget* window, QWidget* accessory)
    : QFileDialog(window)
    , m_accessory(accessory)
    , m_owner(accessory ? accessory->parentWidget() : nullptr)
{
    setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    setAcceptMode(QFileDialog::AcceptSave);
    setFileMode(QFileDialog::AnyFile);
    setViewMode(QFileDialog::Detail);
    setWindowModality(Qt::WindowModal);
    dress();
    if (auto* grid = qobject_cast<QGridLayout*>(layout()); grid && m_accessory) {
        grid->addWidget(m_accessory, grid->rowCount(), 0, 1, grid->columnCount());
        m_accessory->show();
    }
    connect(this, &QDialog::finished, this, &SavePanel::giveBackAccessory);
}

SavePanel::~SavePanel() { giveBackAccessory(); }

void SavePanel::giveBackAccessory()
{
    if (!m_accessory || m_accessory->window() != this)
        return;
    m_accessory->setParent(m_owner);
    m_accessory->hide();
}

void SavePanel::dress()
{
    dressFilePanel(*this);
    resize(760, 520);
    const std::pair<const char*, const char*> icons[] = {
        {"backButton", "chevron-left"},
        {"forwardButton", "chevron-right"},
        {"toParentButton", "chevron-up"},
        {"newFolderButton", "add"},
    };
    for (const auto& [name, icon] : icons)
        if (auto* button = findChild<QToolButton*>(QLatin1String(name))) {
            button->setIcon(tintedIcon(QLatin1String(icon)));
            button->setAutoRaise(true);
        }
    // There is one format, the menu's, and one way of listing.
    for (const char* name : {"fileTypeLabel", "fileTypeCombo", "listModeButton", "detailModeButton"})
        if (auto* part = findChild<QWidget*>(QLatin1String(name)))
            part->hide();
    if (auto* splitter = findChild<QSplitter*>())
        splitter->setSizes({140, 600});
    if (auto* list = findChild<QTreeView*>()) {
        list->header()->setStretchLastSection(false);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        for (const int column : {1, 3})
            list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        list->hideColumn(2); // the kind of file, which the name says
    }
    if (auto* buttons = findChild<QDialogButtonBox*>())
        for (QAbstractButton* button : buttons->buttons())
            button->setIcon({});
}
