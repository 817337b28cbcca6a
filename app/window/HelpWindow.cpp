#include "app/window/HelpWindow.h"

#include "platform/foundation/ResourcePaths.h"
#include "platform/foundation/TintedIcon.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QToolButton>

namespace {

constexpr int kAddressRole = Qt::UserRole;

/// The address of the first link in the text block, or empty.
QString linkIn(const QTextBlock& block)
{
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        if (fragment.fragment().charFormat().isAnchor())
            return fragment.fragment().charFormat().anchorHref();
    return {};
}

} // namespace

HelpWindow::HelpWindow(QWidget& mainWindow)
    : QWidget(&mainWindow, Qt::Window)
    , m_page(new HelpPage(mainWindow))
    , m_contents(new QListWidget)
    , m_back(addButton(QStringLiteral("chevron-left"), tr("Back"), Qt::ALT | Qt::Key_Left))
    , m_forward(addButton(QStringLiteral("chevron-right"), tr("Forward"), Qt::ALT | Qt::Key_Right))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Lumivex Help"));
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setToolTip(tr("The pages of the help book"));
    addLayout();

    connect(m_page, &QTextBrowser::backwardAvailable, m_back, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, m_forward, &QWidget::setEnabled);
    connect(m_back, &QAbstractButton::clicked, m_page, &QTextBrowser::backward);
    connect(m_forward, &QAbstractButton::clicked, m_page, &QTextBrowser::forward);
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::pageChanged);
    connect(m_contents, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item)
            m_page->setSource(item->data(kAddressRole).toUrl());
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);

    m_page->setSource(QUrl::fromLocalFile(firstPage()));
    fillContents();
    pageChanged(m_page->source());
    m_page->setFocus();
}

QToolButton* HelpWindow::addButton(const QString& icon, const QString& name, const QKeySequence& key)
{
    auto* button = new QToolButton(this);
    button->setIcon(tintedIcon(icon));
    button->setAccessibleName(name);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText)));
    button->setShortcut(key);
    button->setEnabled(false);
    return button;
}

void HelpWindow::addLayout()
{
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(8, 8, 8, 8);
    buttons->setSpacing(4);
    buttons->addWidget(m_back);
    buttons->addWidget(m_forward);
    buttons->addStretch();

    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(buttons);
    column->addWidget(m_contents);

    auto* panes = new QSplitter;
    panes->addWidget(side);
    panes->addWidget(m_page);
    panes->setStretchFactor(1, 1);
    panes->setSizes({220, 640});
    panes->setChildrenCollapsible(false);
    panes->setHandleWidth(1);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(panes);
    resize(860, 640);
}

/// The first page, then the pages that it lists.
void HelpWindow::fillContents()
{
    const auto add = [this](const QString& title, const QUrl& page) {
        auto* item = new QListWidgetItem(title, m_contents);
        item->setData(kAddressRole, page);
    };
    add(m_page->documentTitle(), m_page->source());
    for (QTextBlock block = m_page->document()->begin(); block.isValid(); block = block.next())
        if (const QString link = linkIn(block); block.textList() && !link.isEmpty())
            add(block.text(), m_page->source().resolved(QUrl(link)));
    m_contents->setMinimumWidth(m_contents->sizeHintForColumn(0) + m_contents->frameWidth() * 2);
}

void HelpWindow::pageChanged(const QUrl& address)
{
    const QUrl page = m_page->source().resolved(address).adjusted(QUrl::RemoveFragment);
    for (int row = 0; row < m_contents->count(); ++row)
        if (m_contents->item(row)->data(kAddressRole).toUrl() == page) {
            const QSignalBlocker noSecondVisit(m_contents);
            m_contents->setCurrentRow(row);
        }
}

QString HelpWindow::firstPage() { return pathForResource(QStringLiteral("main"), QStringLiteral("html")); }

void HelpWindow::show(QWidget& mainWindow)
{
    if (firstPage().isEmpty())
        return;
    static QPointer<HelpWindow> window;
    if (!window)
        window = new HelpWindow(mainWindow);
    window->setVisible(true);
    window->raise();
    window->activateWindow();
}
