#include "app/window/PreferencesPanel.h"

#include "app/document/RecentFiles.h"
#include "app/document/SaveTarget.h"
#include "files/ExportSettings.h"
#include "platform/foundation/Appearance.h"
#include "widgets/PanelCheckBox.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kMargin = 24, kSpacing = 12, kLeastWidth = 480; // points

} // namespace

PreferencesPanel::PreferencesPanel(QWidget* page)
    : Overlay(page, tr("Preferences"), tr("OK"))
    , m_card(new QWidget)
{
    acceptButton().setToolTip(tr("Takes the choices (Return)"));
    m_card->setObjectName("preferencesCard");
    m_card->setAttribute(Qt::WA_StyledBackground);
    m_card->setMinimumWidth(kLeastWidth);
    content().addWidget(m_card, 0, Qt::AlignCenter);
    bar().addStretch();

    auto* form = new QFormLayout(m_card);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setHorizontalSpacing(kSpacing);
    form->setVerticalSpacing(kSpacing);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    using Choice = Appearance::Choice;
    m_appearance =
        addMenu(*form, "appearanceMenu", tr("&Appearance:"), tr("Whether the program is drawn light or dark"));
    for (const auto& [title, choice] :
        {std::pair{tr("As the Desktop"), Choice::System}, {tr("Light"), Choice::Light}, {tr("Dark"), Choice::Dark}})
        m_appearance->addItem(title, int(choice));
    m_appearance->setCurrentIndex(m_appearance->findData(int(Appearance::shared().choice())));
    using Answer = SaveTarget::Answer;
    m_missingFolder = addMenu(*form, "missingFolderMenu", tr("&Missing folder in Save As:"),
        tr("What Save As does where the folder in lower case is missing"));
    for (const auto& [title, answer] :
        {std::pair{tr("Ask"), Answer::Ask}, {tr("Make Folder"), Answer::Make}, {tr("Use Chosen Folder"), Answer::Keep}})
        m_missingFolder->addItem(title, int(answer));
    m_missingFolder->setCurrentIndex(m_missingFolder->findData(int(SaveTarget::standingAnswer())));
    m_forgetsRecent = addBox(*form, "forgetRecentBox",
        tr("Forget the recent pictures (%1)").arg(RecentFiles::list().size()), tr("Empties the menu Open Recent"));
    m_forgetsExport = addBox(*form, "forgetExportBox", tr("Forget the settings of exports"),
        tr("Each format starts with its standard settings again"));
    connect(this, &Overlay::accepted, this, &PreferencesPanel::apply);
    connect(&Appearance::shared(), &Appearance::changed, this, &PreferencesPanel::dressCard);
    dressCard();
    m_appearance->setFocus();
}

QComboBox* PreferencesPanel::addMenu(QFormLayout& form, const char* name, const QString& caption, const QString& hint)
{
    QString plain = caption;
    auto* menu = new QComboBox;
    menu->setObjectName(QLatin1String(name));
    menu->setAccessibleName(plain.remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    menu->setToolTip(hint);
    form.addRow(caption, menu);
    return menu;
}

PanelCheckBox* PreferencesPanel::addBox(QFormLayout& form, const char* name, const QString& text, const QString& hint)
{
    auto* box = new PanelCheckBox(text);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(hint);
    form.addRow(QString(), box);
    return box;
}

void PreferencesPanel::dressCard()
{
    const Look& look = Appearance::shared().look();
    m_card->setStyleSheet(
        QStringLiteral("#preferencesCard { background: %1; border: 1px solid %2; border-radius: 10px; }")
            .arg(look.panel.name(), look.separator.name()));
}

void PreferencesPanel::apply()
{
    Appearance::shared().setChoice(Appearance::Choice(m_appearance->currentData().toInt()));
    SaveTarget::setStandingAnswer(SaveTarget::Answer(m_missingFolder->currentData().toInt()));
    if (m_forgetsRecent->isChecked())
        RecentFiles::clear();
    if (m_forgetsExport->isChecked())
        ExportSettings::forgetAll();
}
