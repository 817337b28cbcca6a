#include "app/document/Resizing.h"

#include "app/document/Document.h"
#include "files/PictureLimits.h"
#include "platform/chain/Baking.h"
#include "platform/coreimage/passes/Resample.h"
#include "widgets/AlertPanel.h"

void Resizing::resize(float width, float height)
{
    if (!m_document.picture() || !m_document.isIdle())
        return;
    if (!(width > 0 && height > 0)) {
        AlertPanel::Alert_OKMsgText(
            m_window, tr("The picture can't have that size."), tr("Its width and its height are numbers above zero."));
        return;
    }
    const StoredForm form = storedLike(m_document.picture(), m_document.format());
    const std::optional<QSize> size = pixelSize(width, height);
    if (!size || !fitsIntoMemory(*size, form.format)) {
        AlertPanel::Alert_OKMsgText(m_window, tr("The picture can't be made that large."),
            tr("Up to %1 million pixels fit into this computer's memory.")
                .arg(largestPixelCount(form.format) / 1'000'000));
        return;
    }
    const auto make = [recipe = ci::resampled(m_document.picture(), size->width(), size->height()), form,
                          context = m_document.context()](
                          WorkControl& control) { return bakedImage(*context, recipe, form, &control.rendering); };
    m_document.work(
        {.title = tr("Resizing the picture…")}, make, [this](const std::optional<CIImage>& resized, bool isCancelled) {
            if (resized && *resized) {
                m_document.replacePicture(*resized, tr("Resize"));
                m_document.setWasChanged(true);
            } else if (!isCancelled) {
                emit m_document.message(tr("There was not enough memory to resize the picture"));
            }
        });
}
