#include "app/window/Comparing.h"

#include "app/document/Document.h"
#include "controls/picture/MyImageView.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

constexpr Qt::Key kCompareKey = Qt::Key_F7; // on every keyboard, and no text field wants it

bool isCompareKey(const QEvent& event)
{
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == kCompareKey && !key.isAutoRepeat();
}

/// As large as it can be in the middle of `place`.
CIImage fittedInto(const CIImage& image, const CIRect& place)
{
    const CIRect extent = image.extent();
    if (extent == place || extent.isInfinite() || extent.isEmpty())
        return image;
    const double scale = std::min(place.width / extent.width, place.height / extent.height);
    return image.transformed({scale, 0, 0, scale, place.x + (place.width - scale * extent.width) / 2 - scale * extent.x,
        place.y + (place.height - scale * extent.height) / 2 - scale * extent.y});
}

} // namespace

Comparing::Comparing(const Parts& parts, const Document& document, Source source)
    : m_parts(parts)
    , m_document(document)
    , m_source(std::move(source))
{
    m_parts.window.installEventFilter(this);
    connect(&m_parts.button, &QAbstractButton::pressed, this, [this] { compare(true); });
    connect(&m_parts.button, &QAbstractButton::released, this, [this] { compare(false); });
}

bool Comparing::isPossible() const
{
    return m_source.isEdited() || (m_source.isSeen() && m_comparesOpened && m_document.hasOpened());
}

CIImage Comparing::comparedImage() const
{
    const CIImage opened = m_comparesOpened ? m_document.openedPicture() : CIImage();
    return opened ? fittedInto(opened, m_document.picture().extent()) : m_document.picture();
}

void Comparing::compareOpened()
{
    m_comparesOpened = m_parts.openedItem.isChecked();
    m_parts.view.setNeedsDisplay();
}

void Comparing::compare(bool held) { m_parts.view.setShowsOriginal(held && isPossible()); }

void Comparing::split() { m_parts.view.setSplit(m_parts.splitItem.isChecked() && isPossible()); }

void Comparing::update(bool isFree)
{
    m_parts.button.setEnabled(isFree && isPossible());
    split();
}

/// Does what the button does while it is held.
void Comparing::holdKey(bool held)
{
    QAbstractButton& button = m_parts.button;
    if (held && button.isEnabled())
        qApp->installEventFilter(this); // text fields keep releases to themselves
    else
        qApp->removeEventFilter(this);
    if (held == button.isDown() || (held && !button.isEnabled()))
        return;
    button.setDown(held);
    compare(held);
}

bool Comparing::eventFilter(QObject* watched, QEvent* event)
{
    const bool isWindows = watched == &m_parts.window;
    if (event->type() == QEvent::KeyRelease && isCompareKey(*event))
        holdKey(false);
    else if (isWindows && event->type() == QEvent::KeyPress && isCompareKey(*event))
        holdKey(true);
    else if (isWindows && event->type() == QEvent::ActivationChange && !m_parts.window.isActiveWindow())
        holdKey(false); // another window will get its release
    return false;
}
