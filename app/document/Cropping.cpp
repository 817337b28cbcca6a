#include "app/document/Cropping.h"

#include "app/document/Document.h"
#include "app/document/TurnedPicture.h"
#include "controls/crop/CropGeometry.h"
#include "controls/crop/CropPanel.h"
#include "controls/crop/StraightenPanel.h"
#include "platform/chain/Baking.h"
#include "platform/coreimage/passes/Rotation.h"

namespace {

/// The turn about the picture's middle, which comes to the middle of a picture of that size.
CIAffineTransform straighteningMotion(const CIRect& extent, double angle, CIPoint size)
{
    const CIPoint middle = extent.center();
    return CIAffineTransform::translation(-middle.x, -middle.y)
        .then(CIAffineTransform::rotation(angle))
        .then(CIAffineTransform::translation(size.x / 2, size.y / 2));
}

} // namespace

bool Cropping::canAsk() const
{
    const CIRect extent = m_document.picture().extent();
    return m_document.isIdle() && !extent.isEmpty() && !extent.isInfinite() && !Overlay::openIn(*m_page->window());
}

void Cropping::askForCrop()
{
    if (!canAsk())
        return;
    auto* panel = new CropPanel(m_page, m_document.picture());
    QObject::connect(panel, &Overlay::accepted, &m_document, [this, panel] { crop(panel->crop()); });
    show(*panel);
}

void Cropping::askForAngle()
{
    if (!canAsk())
        return;
    auto* panel = new StraightenPanel(m_page, m_document.picture());
    QObject::connect(
        panel, &Overlay::accepted, &m_document, [this, panel] { straighten(panel->angle(), panel->fills()); });
    show(*panel);
}

void Cropping::show(Overlay& panel)
{
    // Whatever else is done with the document is not for the picture that the panel shows.
    QObject::connect(&m_document, &Document::pictureChanged, &panel, &Overlay::cancel);
    QObject::connect(&m_document, &Document::stateChanged, &panel, &Overlay::cancel);
    QObject::connect(&panel, &Overlay::closed, &m_document, [this] { m_panelChanged(); });
    panel.open();
    m_panelChanged();
}

void Cropping::crop(const CIRect& rect)
{
    const CIImage& picture = m_document.picture();
    if (!picture || rect.isEmpty() || (rect.width == picture.extent().width && rect.height == picture.extent().height))
        return;
    const auto make = [picture, rect](WorkControl&) {
        const CIImage cropped = croppedPicture(picture, rect);
        makeReducedCopies(cropped);
        return cropped;
    };
    m_document.work({.title = tr("Cropping the picture…"), .canBeCancelled = false}, make,
        [this](const std::optional<CIImage>& made, bool isCancelled) { replace(made, isCancelled, tr("Crop")); });
}

void Cropping::straighten(double angle, bool fills)
{
    const CIImage& picture = m_document.picture();
    if (!picture || angle == 0)
        return;
    const CIRect extent = picture.extent();
    const CIPoint size = straightenedSize({extent.width, extent.height}, angle, fills);
    // Where the frame touches the picture's edges they go on outwards, so that no half transparent pixel is kept.
    const CIImage turned =
        ci::turned(fills ? picture.clampedToExtent() : picture, straighteningMotion(extent, angle, size))
            .cropped({0, 0, size.x, size.y});
    const auto make = [turned, format = storedLike(m_document.picture(), m_document.format()),
                          context = m_document.context()](
                          WorkControl& control) { return bakedImage(*context, turned, format, &control.rendering); };
    m_document.work({.title = tr("Straightening the picture…")}, make,
        [this](const std::optional<CIImage>& made, bool isCancelled) { replace(made, isCancelled, tr("Straighten")); });
}

void Cropping::replace(const std::optional<CIImage>& made, bool isCancelled, const QString& actionName)
{
    if (made && *made) {
        m_document.replacePicture(*made, actionName);
        m_document.setWasChanged(true);
    } else if (!isCancelled) {
        emit m_document.message(tr("There was not enough memory to crop the picture"));
    }
}
