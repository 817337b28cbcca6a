#include "app/window/StatusRow.h"

#include "app/document/Document.h"
#include "platform/chain/Baking.h"
#include "platform/coreimage/CIColorProfile.h"
#include "widgets/BackgroundWork.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kMessageTime = 8s;
constexpr auto kOfferTime = 10s;
constexpr auto kTick = 50ms;

QString depthText(const Document& document)
{
    const CIProfiledSpace* const profiled = profiledSpace(storedLike(document.picture(), document.format()).space);
    const QString name = profiled ? QString::fromStdString(profiled->profile().name).simplified() : QString();
    switch (document.format()) {
    case CIFormat::RGBA16:
        return profiled ? StatusRow::tr("%1 16-bit", "name of a color space").arg(name) : StatusRow::tr("sRGB 16-bit");
    case CIFormat::RGBAf:
        return StatusRow::tr("sRGB 32-bit float");
    default:
        return profiled ? StatusRow::tr("%1 8-bit", "name of a color space").arg(name) : StatusRow::tr("sRGB 8-bit");
    }
}

QString pictureText(const Document& document)
{
    if (!document.picture())
        return document.readFailure().isEmpty() ? StatusRow::tr("No picture") : document.readFailure();
    const CIRect extent = document.picture().extent();
    return StatusRow::tr("%1 × %2 px · %3", "width, height, color space and depth")
        .arg(std::lround(extent.width))
        .arg(std::lround(extent.height))
        .arg(depthText(document));
}

} // namespace

StatusRow::StatusRow(const Document& document, Parts parts)
    : m_document(document)
    , m_parts(parts)
{
    m_messageEnd.setSingleShot(true);
    m_messageEnd.callOnTimeout(this, &StatusRow::update);
    connect(&document, &Document::message, this, &StatusRow::showMessage);
}

void StatusRow::update()
{
    removeButtons();
    QString text = m_progressText.isEmpty() ? pictureText(m_document) : m_progressText;
    const CIRect picture = m_document.picture().extent();
    const bool isLarger = m_result.width > picture.width || m_result.height > picture.height;
    if (isLarger && !m_result.isInfinite() && m_progressText.isEmpty())
        text += tr(" · result: %1 × %2 px", "after the picture's size, for a result that is larger")
                    .arg(std::lround(m_result.width))
                    .arg(std::lround(m_result.height));
    m_parts.field.setText(text);
}

void StatusRow::setResult(const CIRect& extent)
{
    if (std::exchange(m_result, extent) != extent && !m_messageEnd.isActive())
        update();
}

void StatusRow::showMessage(const QString& text)
{
    removeButtons();
    m_parts.field.setText(text);
    m_messageEnd.start(kMessageTime);
    alert();
}

void StatusRow::showReadFailure(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    showMessage(m_document.readFailure().isEmpty()
            ? tr("%1 can't be read").arg(name)
            : tr("%1: %2", "file name, what is wrong").arg(name, m_document.readFailure()));
}

void StatusRow::offer(const QString& text, const QList<QAction*>& actions)
{
    showMessage(text);
    m_messageEnd.start(kOfferTime);
    auto* row = qobject_cast<QBoxLayout*>(m_parts.field.parentWidget()->layout());
    int place = row ? row->indexOf(&m_parts.field) : 0;
    for (QAction* action : actions) {
        auto* button = new QToolButton(m_parts.field.parentWidget());
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, &StatusRow::endOffer);
        m_offered.push_back(button);
        if (row)
            row->insertWidget(++place, button);
        button->show();
    }
}

void StatusRow::endOffer()
{
    if (!m_offered.isEmpty())
        update();
}

/// One of them may be what is just being pressed.
void StatusRow::removeButtons()
{
    for (const QPointer<QWidget>& button : std::exchange(m_offered, {}))
        if (button) {
            button->hide();
            button->deleteLater();
        }
}

void StatusRow::showProgress(const QString& text, std::function<double()> progress)
{
    m_progressText = text;
    m_formerFocus = m_parts.window.focusWidget();
    m_parts.window.setFocus();
    update();
    alert();
    const auto show = [this, progress = std::move(progress)] { showProgressOn(m_parts.bar, progress()); };
    m_tick.disconnect();
    m_tick.callOnTimeout(this, show);
    m_tick.start(kTick);
    show();
    m_parts.bar.setAccessibleName(text);
    m_parts.bar.show();
    m_parts.cancel.show();
}

void StatusRow::endProgress()
{
    if (m_progressText.isEmpty())
        return;
    m_progressText.clear();
    m_tick.stop();
    if (!m_messageEnd.isActive())
        update();
    const QWidget* const focus = m_parts.window.focusWidget();
    const bool isNobodys = !focus || focus == &m_parts.window || focus == &m_parts.cancel;
    m_parts.bar.hide();
    m_parts.cancel.hide();
    if (QWidget* former = std::exchange(m_formerFocus, nullptr); former && isNobodys)
        former->setFocus();
}

void StatusRow::alert()
{
    QAccessibleEvent event(&m_parts.field, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
