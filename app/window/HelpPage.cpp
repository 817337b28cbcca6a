#include "app/window/HelpPage.h"

#include "platform/foundation/Appearance.h"
#include "translations/Translations.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScrollBar>

namespace {

// @name stands for the color of that name.
const char* const kStyle = R"(
h1 { font-size: x-large; font-weight: 600; margin-top: 0px; margin-bottom: 12px; }
h2 { font-size: large; font-weight: 600; margin-top: 20px; margin-bottom: 4px; }
p { margin-top: 8px; margin-bottom: 8px; line-height: 135%; }
.picture { line-height: 100%; }
li { margin-bottom: 4px; line-height: 135%; }
td { padding: 4px 24px 4px 0px; }
a { color: @link; text-decoration: none; }
.key { color: @link; }
.note { color: @secondary; }
)";

/// The file with the page in the window's language, or in English where the book has no other.
QString translated(const QUrl& page)
{
    const QFileInfo english(page.toLocalFile());
    const QString file = QStringLiteral("%1/%2/%3").arg(english.path(), loadedLanguage(*qApp), english.fileName());
    return QFileInfo(file).isFile() ? file : english.filePath();
}

QUrl darkTwin(const QUrl& picture)
{
    const QFileInfo file(picture.toLocalFile());
    const QString twin = QStringLiteral("%1/%2-dark.%3").arg(file.path(), file.completeBaseName(), file.suffix());
    return QFileInfo(twin).isFile() ? QUrl::fromLocalFile(twin) : picture;
}

} // namespace

HelpPage::HelpPage(QWidget& mainWindow)
    : m_mainWindow(mainWindow)
{
    setAccessibleName(tr("Page"));
    setToolTip(tr("A page of the help book; links lead to the others"));
    setFrameShape(NoFrame);
    setOpenExternalLinks(true);
    document()->setDocumentMargin(24);
    dress();
    connect(&Appearance::shared(), &Appearance::changed, this, &HelpPage::dress);
}

void HelpPage::dress()
{
    const Look& look = Appearance::shared().look();
    QString style = QString::fromLatin1(kStyle);
    style.replace(QLatin1String("@link"), look.accentMark.name());
    style.replace(QLatin1String("@secondary"), look.secondaryText.name());
    document()->setDefaultStyleSheet(style);
    if (source().isEmpty())
        return;
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    const QUrl file = source().isEmpty() ? name : source().resolved(name);
    if (type == QTextDocument::HtmlResource) {
        QFile page(translated(file));
        return page.open(QIODevice::ReadOnly) ? withKeys(QString::fromUtf8(page.readAll()), m_mainWindow) : QVariant();
    }
    const bool dark = type == QTextDocument::ImageResource && Appearance::shared().isDark();
    return QTextBrowser::loadResource(type, dark ? darkTwin(file) : file);
}

QString HelpPage::withKeys(QString page, const QWidget& mainWindow)
{
    static const QRegularExpression place(QStringLiteral("\\{(action\\w+)\\}"));
    for (QRegularExpressionMatch match = place.match(page); match.hasMatch(); match = place.match(page)) {
        const auto* action = mainWindow.findChild<QAction*>(match.captured(1));
        const QString keys = action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
        page.replace(match.capturedStart(), match.capturedLength(),
            QStringLiteral("<span class=\"key\">%1</span>").arg(keys.toHtmlEscaped()));
    }
    return page;
}
