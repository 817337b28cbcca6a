#include "files/SavePanel.h"

#include "widgets/FilePanel.h"

SavePanel::SavePanel(QWidget* window, QWidget* accessory)
    : QFileDialog(window)
    , m_accessory(accessory)
    , m_owner(accessory ? accessory->parentWidget() : nullptr)
{
    setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    setAcceptMode(QFileDialog::AcceptSave);
    setFileMode(QFileDialog::AnyFile);
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
    for (const char* name : {"fileTypeLabel", "fileTypeCombo"}) // the accessory view's menu chooses the format
        if (auto* part = findChild<QWidget*>(QLatin1String(name)))
            part->hide();
}
