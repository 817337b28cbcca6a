#include "app/window/AboutWindow.h"

#include "platform/foundation/Appearance.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>

namespace {

struct Library {
    const char* name;
    const char* use;
    const char* license; // SPDX
};

constexpr Library kLibraries[] = {
    {"Qt 6", QT_TRANSLATE_NOOP("AboutWindow", "windows and drawing"), "LGPL-3.0-only"},
    {"libvips", QT_TRANSLATE_NOOP("AboutWindow", "picture files"), "LGPL-2.1-or-later"},
    {"LibRaw", QT_TRANSLATE_NOOP("AboutWindow", "camera raw files"), "LGPL-2.1-only"},
    {"Exiv2", QT_TRANSLATE_NOOP("AboutWindow", "what files say about their pictures"), "GPL-2.0-or-later"},
    {"Little CMS", QT_TRANSLATE_NOOP("AboutWindow", "color profiles"), "MIT"},
    {"oneTBB", QT_TRANSLATE_NOOP("AboutWindow", "work on all cores"), "Apache-2.0"},
    {"xsimd", QT_TRANSLATE_NOOP("AboutWindow", "vector arithmetic"), "BSD-3-Clause"},
    {"Zint", QT_TRANSLATE_NOOP("AboutWindow", "barcodes"), "BSD-3-Clause"},
    {"Zstandard", QT_TRANSLATE_NOOP("AboutWindow", "the packed undo history"), "BSD-3-Clause"},
    {"GLU", QT_TRANSLATE_NOOP("AboutWindow", "surfaces and solid bodies"), "SGI-B-2.0"},
};

QString cells(const QString& first, const QString& second, const QString& third)
{
    return QStringLiteral(
        "<tr><td style=\"padding-right:16px\">%1</td><td style=\"padding-right:16px\">%2</td><td>%3</td></tr>")
        .arg(first, second, third);
}

} // namespace

AboutWindow::AboutWindow(QWidget* parent)
    : QDialog(parent)
    , m_text(new QLabel)
{
    setObjectName(QStringLiteral("AboutWindow"));
    setWindowTitle(tr("About Lumivex"));
    setWindowModality(Qt::WindowModal);

    auto* icon = new QLabel;
    icon->setPixmap(parent->windowIcon().pixmap(QSize(96, 96), parent->devicePixelRatioF()));
    icon->setAccessibleName(tr("The program's icon"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setTextInteractionFlags(Qt::TextBrowserInteraction);
    m_text->setOpenExternalLinks(true);
    m_text->setAccessibleName(tr("About Lumivex"));
    m_text->setToolTip(tr("Version, license and libraries; the text can be selected and copied"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    column->addLayout(row);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    buttons->setFocus();

    writeText();
    connect(&Appearance::shared(), &Appearance::changed, this, &AboutWindow::writeText);
}

void AboutWindow::writeText()
{
    const Look& look = Appearance::shared().look();
    QString libraries;
    for (const Library& library : kLibraries)
        libraries += cells(QLatin1String(library.name), tr(library.use), QLatin1String(library.license));
    const QString license =
        QStringLiteral("<a style=\"color:%1\" href=\"https://www.gnu.org/licenses/gpl-3.0.html\">GPL-3.0-or-later</a>")
            .arg(look.accentMark.name());
    const QStringList paragraphs{
        QStringLiteral("<p style=\"font-size:x-large; font-weight:600; margin-bottom:0\">Lumivex</p>"),
        QStringLiteral("<p style=\"color:%1; margin-top:4px\">%2</p>")
            .arg(look.secondaryText.name(), tr("Version %1").arg(QCoreApplication::applicationVersion())),
        QStringLiteral("<p>%1</p>").arg(tr("A picture editor with live filters. It uses no network.")),
        QStringLiteral("<p>%1</p>").arg(tr("Free software that comes without any warranty. License: %1").arg(license)),
        QStringLiteral("<p style=\"margin-top:16px\">%1</p>").arg(tr("It stands on these libraries:")),
        QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\">%1</table>").arg(libraries)};
    m_text->setText(paragraphs.join(QString()));
}
