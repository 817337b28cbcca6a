// How the program looks, and what it remembers.
#pragma once

#include "widgets/Overlay.h"

class QComboBox;
class QFormLayout;
class PanelCheckBox;

/// Nothing changes before it is accepted.
class PreferencesPanel : public Overlay {
    Q_OBJECT

public:
    explicit PreferencesPanel(QWidget* page);

private:
    QComboBox* addMenu(QFormLayout& form, const char* name, const QString& caption, const QString& hint);
    PanelCheckBox* addBox(QFormLayout& form, const char* name, const QString& text, const QString& hint);
    void dressCard();
    void apply();

    QWidget* m_card;
    QComboBox *m_appearance, *m_missingFolder;
    PanelCheckBox *m_forgetsRecent, *m_forgetsExport;
};
