#include "files/SavePanel.h"

#include "widgets/FilePanel.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>

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
    addTargetLine();
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

void SavePanel::addTargetLine()
{
    m_targetLine = new QLabel(this);
    m_targetLine->setObjectName(QStringLiteral("targetLine"));
    m_targetLine->setTextFormat(Qt::PlainText);
    m_targetLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // long paths don't make the panel wide
    if (auto* grid = qobject_cast<QGridLayout*>(layout()))
        grid->addWidget(m_targetLine, grid->rowCount(), 0, 1, grid->columnCount());
    if (auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        connect(name, &QLineEdit::textChanged, this, &SavePanel::showTarget);
    connect(this, &QFileDialog::directoryEntered, this, &SavePanel::showTarget);
}

void SavePanel::setTarget(std::function<QString(const QString& chosen)> target)
{
    m_target = std::move(target);
    showTarget();
}

void SavePanel::showTarget()
{
    const auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!m_target || !name)
        return;
    const QString chosen = name->text().isEmpty() ? QString() : selectedFiles().value(0);
    QString text;
    if (!chosen.isEmpty()) {
        const QString target = QDir::toNativeSeparators(m_target(chosen));
        text = QFileInfo::exists(QFileInfo(target).absolutePath())
            ? tr("Will be written to %1").arg(target)
            : tr("Will be written to %1, where there is no folder yet").arg(target);
    }
    m_targetLine->setText(m_targetLine->fontMetrics().elidedText(text, Qt::ElideMiddle, m_targetLine->width()));
    m_targetLine->setToolTip(text);
    m_targetLine->setAccessibleName(text);
}

void SavePanel::resizeEvent(QResizeEvent* event)
{
    QFileDialog::resizeEvent(event);
    showTarget();
}
