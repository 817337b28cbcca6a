#include "widgets/Overlay.h"

#include "platform/foundation/Appearance.h"

#include <utility>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 12, kSpacing = 8, kAfterTitle = 16, kCardMargin = 20; // points
constexpr int kShade = 110; // of what a card stands in front of, of 255
const char* const kOpenOverlay = "openOverlay"; // of the window: asked for with every change of a command

} // namespace

Overlay::Overlay(QWidget* page, const QString& title, const QString& acceptText, Form form)
    : QWidget(page)
    , m_page(page)
    , m_formerFocus(page->window()->focusWidget())
    , m_card(form == Form::Card ? new QWidget(this) : nullptr)
    , m_row(new QWidget(m_card ? m_card : this))
    , m_content(new QVBoxLayout)
    , m_bar(new QHBoxLayout)
    , m_accept(new QPushButton(acceptText))
{
    hide(); // until `open`
    setAccessibleName(title);
    m_row->setObjectName("overlayBar");
    m_row->setAttribute(Qt::WA_StyledBackground);
    auto* heading = new QLabel(title);
    QFont bold = heading->font();
    bold.setWeight(QFont::DemiBold);
    heading->setFont(bold);
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName("overlayCancelBtn");
    cancel->setToolTip(tr("Leaves everything as it was (Esc)"));
    m_accept->setObjectName("overlayAcceptBtn");
    m_accept->setProperty("prominent", true);
    connect(cancel, &QPushButton::clicked, this, &Overlay::cancel);
    connect(m_accept, &QPushButton::clicked, this, &Overlay::accept);

    auto* row = new QHBoxLayout(m_row);
    row->setSpacing(kSpacing);
    m_bar->setSpacing(kSpacing);
    auto* all = new QVBoxLayout(m_card ? m_card : this);
    all->setSpacing(0);
    if (m_card) {
        m_card->setObjectName("overlayCard");
        m_card->setAttribute(Qt::WA_StyledBackground);
        auto* centered = new QVBoxLayout(this);
        centered->addWidget(m_card, 0, Qt::AlignCenter);
        all->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
        all->setSpacing(kCardMargin);
        all->addWidget(heading);
        row->setContentsMargins(0, 0, 0, 0);
    } else {
        all->setContentsMargins(0, 0, 0, 0);
        row->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
        row->addWidget(heading);
        row->addSpacing(kAfterTitle);
    }
    row->addLayout(m_bar, 1);
    row->addSpacing(kAfterTitle);
    row->addWidget(cancel);
    row->addWidget(m_accept);
    all->addLayout(m_content, 1);
    all->addWidget(m_row);
    dress();
    connect(&Appearance::shared(), &Appearance::changed, this, &Overlay::dress);
}

Overlay::~Overlay() = default;

Overlay* Overlay::openIn(const QWidget& window)
{
    return qobject_cast<Overlay*>(window.property(kOpenOverlay).value<QObject*>());
}

void Overlay::open()
{
    for (QWidget* child : m_page->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child != this && child->isEnabledTo(m_page)) {
            child->setEnabled(false);
            m_covered << child;
        }
    m_isOpen = true;
    window()->setProperty(kOpenOverlay, QVariant::fromValue<QObject*>(this));
    m_page->installEventFilter(this);
    setGeometry(m_page->rect());
    raise();
    show();
    if (!isAncestorOf(window()->focusWidget()))
        m_accept->setFocus();
}

/// Answers whether it was open.
bool Overlay::end()
{
    if (!std::exchange(m_isOpen, false))
        return false;
    window()->setProperty(kOpenOverlay, QVariant());
    for (const QPointer<QWidget>& child : std::exchange(m_covered, {}))
        if (child)
            child->setEnabled(true);
    if (m_formerFocus)
        m_formerFocus->setFocus(); // before the keyboard loses its place
    hide();
    deleteLater();
    emit closed();
    return true;
}

void Overlay::accept()
{
    if (end())
        emit accepted();
}

void Overlay::cancel() { end(); }

bool Overlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_page && event->type() == QEvent::Resize)
        setGeometry(m_page->rect());
    return QWidget::eventFilter(watched, event);
}

/// Nothing of the mouse reaches what lies under the panel.
bool Overlay::event(QEvent* event)
{
    const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease
        || event->type() == QEvent::MouseMove || event->type() == QEvent::Wheel;
    return QWidget::event(event) || isMouse;
}

void Overlay::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        return cancel();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(window()->focusWidget()))
            button->click();
        else
            accept();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Overlay::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), m_card ? QColor(0, 0, 0, kShade) : Appearance::shared().look().surround);
}

void Overlay::dress()
{
    const Look& look = Appearance::shared().look();
    if (m_card)
        m_card->setStyleSheet(
            QStringLiteral("#overlayCard { background: %1; border: 1px solid %2; border-radius: 10px; }")
                .arg(look.panel.name(), look.separator.name()));
    else
        m_row->setStyleSheet(QStringLiteral("#overlayBar { background: %1; border: none; border-top: 1px solid %2; }")
                                 .arg(look.window.name(), look.separator.name()));
}
