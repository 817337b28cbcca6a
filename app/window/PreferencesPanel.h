// How the program looks, and what it remembers.
#pragma once

#include "widgets/Overlay.h"

#include <QList>

#include <utility>
#include <vector>

class QAction;
class QComboBox;
class QFormLayout;
class PanelCheckBox;

/// Nothing changes before it is accepted.
class PreferencesPanel : public Overlay {
    Q_OBJECT

public:
    /// `switches` of menus have a box each, too.
    PreferencesPanel(QWidget* page, const QList<QAction*>& switches);

private:
    void addTitle(const QString& title);
    QComboBox* addMenu(const char* name, const QString& caption, const QString& hint);
    PanelCheckBox* addBox(const QString& name, const QString& text, const QString& hint);
    void apply();

    QFormLayout* m_form;
    QComboBox *m_appearance, *m_missingFolder;
    PanelCheckBox *m_forgetsRecent, *m_forgetsExport;
    std::vector<std::pair<QAction*, PanelCheckBox*>> m_switches;
};
