#include "widgets/FilePanel.h"

#include <QFileDialog>
#include <QLabel>

void dressFilePanel(QFileDialog& panel)
{
    panel.setOption(QFileDialog::HideNameFilterDetails);
    const std::pair<const char*, const char*> captions[] = {
        {"lookInLabel", "lookInCombo"},
        {"fileTypeLabel", "fileTypeCombo"},
    };
    for (const auto& [label, menu] : captions)
        if (auto* caption = panel.findChild<QLabel*>(QLatin1String(label)))
            caption->setBuddy(panel.findChild<QWidget*>(QLatin1String(menu)));
}
