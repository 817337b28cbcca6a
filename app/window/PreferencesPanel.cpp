#include "app/window/PreferencesPanel.h"

#include "app/document/RecentFiles.h"
#include "app/document/SaveTarget.h"
#include "files/ExportSettings.h"
#include "platform/foundation/Appearance.h"
#include "widgets/PanelCheckBox.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kSpacing = 10, kBeforeTitle = 8, kLeastWidth = 440; // points

QString plain(QString text) { return text.remove(QLatin1Char('&')); }

} // namespace

PreferencesPanel::PreferencesPanel(QWidget* page, const QList<QAction*>& switches)
    : Overlay(page, tr("Preferences"), tr("OK"), Form::Card)
    , m_form(new QFormLayout)
{
    acceptButton().setToolTip(tr("Takes the choices (Return)"));
    acceptButton().setMinimumWidth(acceptButton().sizeHint().width() * 3 / 2);
    bar().addStretch();
    content().addLayout(m_form);
    content().addSpacing(kSpacing);
    m_form->setHorizontalSpacing(kSpacing);
    m_form->setVerticalSpacing(kSpacing);
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);

    addTitle(tr("Window"));
    using Choice = Appearance::Choice;
    m_appearance = addMenu("appearanceMenu", tr("&Appearance:"), tr("Whether the program is drawn light or dark"));
    for (const auto& [title, choice] :
        {std::pair{tr("As the Desktop"), Choice::System}, {tr("Light"), Choice::Light}, {tr("Dark"), Choice::Dark}})
        m_appearance->addItem(title, int(choice));
    m_appearance->setCurrentIndex(m_appearance->findData(int(Appearance::shared().choice())));
    for (QAction* item : switches) {
        m_switches.emplace_back(
            item, addBox(item->objectName() + QLatin1String("Box"), plain(item->text()), item->toolTip()));
        m_switches.back().second->setChecked(item->isChecked());
    }
    addTitle(tr("Files"));
    using Answer = SaveTarget::Answer;
    m_missingFolder = addMenu("missingFolderMenu", tr("&Missing folder in Save As:"),
        tr("What Save As does where the folder in lower case is missing"));
    for (const auto& [title, answer] :
        {std::pair{tr("Ask"), Answer::Ask}, {tr("Make Folder"), Answer::Make}, {tr("Use Chosen Folder"), Answer::Keep}})
        m_missingFolder->addItem(title, int(answer));
    m_missingFolder->setCurrentIndex(m_missingFolder->findData(int(SaveTarget::standingAnswer())));
    m_forgetsRecent = addBox(QStringLiteral("forgetRecentBox"),
        tr("Forget the recent pictures (%1)").arg(RecentFiles::list().size()), tr("Empties the menu Open Recent"));
    m_forgetsExport = addBox(QStringLiteral("forgetExportBox"), tr("Forget the settings of exports"),
        tr("Each format starts with its standard settings again"));
    connect(this, &Overlay::accepted, this, &PreferencesPanel::apply);
    m_appearance->setFocus();
}

void PreferencesPanel::addTitle(const QString& title)
{
    auto* label = new QLabel(title);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setMinimumWidth(kLeastWidth);
    if (m_form->rowCount() > 0)
        label->setContentsMargins(0, kBeforeTitle, 0, 0);
    m_form->addRow(label);
}

QComboBox* PreferencesPanel::addMenu(const char* name, const QString& caption, const QString& hint)
{
    auto* menu = new QComboBox;
    menu->setObjectName(QLatin1String(name));
    menu->setAccessibleName(plain(caption).remove(QLatin1Char(':')));
    menu->setToolTip(hint);
    m_form->addRow(caption, menu);
    return menu;
}

PanelCheckBox* PreferencesPanel::addBox(const QString& name, const QString& text, const QString& hint)
{
    auto* box = new PanelCheckBox(text);
    box->setObjectName(name);
    box->setToolTip(hint);
    m_form->addRow(QString(), box);
    return box;
}

void PreferencesPanel::apply()
{
    Appearance::shared().setChoice(Appearance::Choice(m_appearance->currentData().toInt()));
    SaveTarget::setStandingAnswer(SaveTarget::Answer(m_missingFolder->currentData().toInt()));
    for (const auto& [item, box] : m_switches)
        if (box->isChecked() != item->isChecked())
            item->trigger();
    if (m_forgetsRecent->isChecked())
        RecentFiles::clear();
    if (m_forgetsExport->isChecked())
        ExportSettings::forgetAll();
}
