#include "widgets/DocPageControl.h"

#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QToolButton>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr int kHeight = 50; // points
constexpr int kStepButtonWidth = 20, kStepButtonHeight = 37; // as high as cards without their boxes
constexpr auto kTick = 10ms;
constexpr int kGlideTime = 160; // ms

} // namespace

DocPageControl::DocPageControl(QWidget* parent)
    : QWidget(parent)
    , prevBtn(addStepButton("chevron-left", tr("Previous favourites")))
    , nextBtn(addStepButton("chevron-right", tr("Next favourites")))
    , mainPageScroller(new QWidget(this))
    , m_document(new QWidget(mainPageScroller))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(prevBtn, 0, Qt::AlignBottom);
    row->addWidget(mainPageScroller, 1);
    row->addWidget(nextBtn, 0, Qt::AlignBottom);
    setFixedHeight(kHeight);
    mainPageScroller->installEventFilter(this);
    m_document->setFixedHeight(kHeight);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kTick);
    m_glide.setDuration(kGlideTime);
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_timer, &QTimer::timeout, this, &DocPageControl::AnimateScroller);
    connect(&m_glide, &QVariantAnimation::valueChanged, this, [this](const QVariant& x) { setOrigin(x.toDouble()); });
    connect(&m_glide, &QVariantAnimation::finished, this, &DocPageControl::setHiddenStates);
    connect(prevBtn, &QAbstractButton::clicked, this, &DocPageControl::stepPrev);
    connect(nextBtn, &QAbstractButton::clicked, this, &DocPageControl::stepNext);
    connect(&Appearance::shared(), &Appearance::changed, mainPageScroller, qOverload<>(&QWidget::update));
    awakeFromNib();
}

void DocPageControl::awakeFromNib() { setHiddenStates(); }

QToolButton* DocPageControl::addStepButton(const char* icon, const QString& name)
{
    auto* button = new QToolButton(this);
    button->setIcon(tintedIcon(QLatin1String(icon)));
    button->setIconSize(QSize(16, 16));
    button->setFixedSize(kStepButtonWidth, kStepButtonHeight);
    button->setStyleSheet(QStringLiteral("QToolButton { padding: 0 }"));
    button->setAutoRepeat(true);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::NoFocus); // arrow keys walk over the items
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // a hidden button keeps its place, so that the items stay
    button->setSizePolicy(policy);
    return button;
}

void DocPageControl::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    mainPageScroller->update();
}

double DocPageControl::visibleWidth() const { return mainPageScroller->width(); }

// --- paging ---

void DocPageControl::setPageCount(int count)
{
    m_paging.setPageCount(count, visibleWidth());
    mainPageScroller->update();
}

void DocPageControl::setCurrentPage(int page)
{
    m_paging.current_page = page;
    m_paging.pullBack();
    scrollToPage();
}

void DocPageControl::stepNext()
{
    settle();
    if (m_paging.view_page_count == 1) {
        if (m_paging.current_page < m_paging.pageCount - 1) {
            ++m_paging.current_page;
            scrollToPage();
        }
    } else if (hasMore()) {
        animateTo(m_origin + m_paging.pitch);
        ++m_paging.current_page;
        m_paging.boundAfterStep();
    }
}

void DocPageControl::stepPrev()
{
    settle();
    if (m_paging.view_page_count == 1) {
        if (m_paging.current_page > 0) {
            --m_paging.current_page;
            scrollToPage();
        }
    } else if (m_origin > 0) {
        --m_paging.current_page;
        double target = m_origin - m_paging.pitch;
        if (target < 0)
            target = m_paging.current_page = 0;
        animateTo(target);
    }
}

void DocPageControl::stepNextTo(int index)
{
    settle();
    if (m_paging.view_page_count == 1) {
        m_paging.current_page = std::clamp(index, 0, std::max(0, m_paging.pageCount - 1));
        scrollToPage();
    } else if (hasMore()) {
        m_paging.current_page = index;
        m_paging.boundAfterStep();
        animateTo(m_paging.current_page * m_paging.pitch);
    }
}

void DocPageControl::scrollToPage()
{
    settle();
    m_glide.setStartValue(m_origin);
    m_glide.setEndValue(double(m_paging.current_page * m_paging.pitch));
    m_glide.start();
}

void DocPageControl::setHiddenStates()
{
    prevBtn->setVisible(!m_paging.hidesPrevious(m_origin));
    nextBtn->setVisible(hasMore());
}

void DocPageControl::adjustVisibility(int index)
{
    settle();
    const int step = m_paging.stepToShow(index, m_origin, visibleWidth());
    if (step > 0)
        stepNext();
    else if (step < 0)
        stepPrev();
}

void DocPageControl::liveResizeDone()
{
    settle();
    m_paging.setPageCount(m_paging.pageCount, visibleWidth());
    m_paging.pullBack();
    layOutItems();
    setOrigin(m_paging.current_page * m_paging.pitch);
    setHiddenStates();
}

void DocPageControl::setOrigin(double x)
{
    m_origin = x;
    m_document->move(-int(std::lround(x)), 0);
}

void DocPageControl::animateTo(double x)
{
    m_animation.emplace(m_origin, x, m_paging.documentWidth(visibleWidth()), visibleWidth());
    m_timer.start();
}

void DocPageControl::AnimateScroller()
{
    setOrigin(m_animation->tick());
    if (m_animation->isDone()) {
        m_timer.stop();
        m_animation.reset();
        setHiddenStates();
    }
}

/// Ends a movement at once where it would have ended.
void DocPageControl::settle()
{
    if (!isMoving())
        return;
    const double target = m_animation ? m_animation->target() : m_glide.endValue().toDouble();
    m_timer.stop();
    m_animation.reset();
    m_glide.stop();
    setOrigin(target);
    setHiddenStates();
}

// --- items ---

void DocPageControl::layOutItems()
{
    for (int i = 0; i < m_items.size(); ++i)
        if (m_items[i] != m_drag.item)
            m_items[i]->move(i * m_paging.pitch, 0);
    m_document->setFixedWidth(int(m_paging.documentWidth(visibleWidth())));
}

void DocPageControl::addItem(QAbstractButton* item, QAbstractButton* selected)
{
    settle();
    const int before = m_items.indexOf(selected);
    const int index = before < 0 ? int(m_items.size()) : before + 1;
    m_items.insert(index, item);
    item->setParent(m_document);
    item->show();
    if (before >= 0) {
        selected->setChecked(false);
        item->setChecked(true);
    }
    item->installEventFilter(this);
    item->setFocusPolicy(m_items.size() == 1 ? Qt::StrongFocus : Qt::ClickFocus);
    m_paging.current_page = index;
    setPageCount(m_paging.pageCount + 1);
    liveResizeDone();
    if (index >= maxShownPage())
        stepNextTo(index);
}

void DocPageControl::removeItem(QAbstractButton* item)
{
    const int index = indexOf(item);
    if (index < 0)
        return;
    settle();
    if (m_drag.item == item)
        m_drag.item = nullptr;
    const bool hadFocus = item->hasFocus();
    m_items.removeAt(index);
    setPageCount(m_paging.pageCount - 1);
    if (!m_items.isEmpty()) {
        QAbstractButton* next = m_items[std::min(index, int(m_items.size()) - 1)];
        setTabStop(next);
        if (hadFocus)
            next->setFocus(Qt::OtherFocusReason);
    }
    item->removeEventFilter(this);
    item->hide();
    item->deleteLater(); // later, since its own click may be what removes it
    liveResizeDone();
}

void DocPageControl::placeItem(QAbstractButton* item, int index)
{
    m_items.move(indexOf(item), std::clamp(index, 0, int(m_items.size()) - 1));
    layOutItems();
}

void DocPageControl::moveItem(QAbstractButton* item, int index)
{
    const int former = indexOf(item);
    if (former < 0)
        return;
    settle();
    placeItem(item, index);
    showItem(indexOf(item));
    if (indexOf(item) != former)
        emit itemMoved();
}

void DocPageControl::clear()
{
    settle();
    m_drag.item = nullptr;
    for (QAbstractButton* item : std::as_const(m_items)) {
        item->hide();
        item->deleteLater();
    }
    m_items.clear();
    setPageCount(0);
    liveResizeDone();
}
