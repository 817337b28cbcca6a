#include "effects2d/BaseEffect.h"

#include "effects2d/EffectMaster.h"

void BaseEffect::clearTopControlsView()
{
    if (!topControlsView)
        return;
    const QList<QWidget*> controls = topControlsView->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* control : controls) {
        // One of them may be the sender of the event that brought us here.
        control->hide();
        control->setParent(nullptr);
        control->deleteLater();
    }
}

std::shared_ptr<BaseEffect> BaseEffect::copyWithZone() const
{
    std::shared_ptr<BaseEffect> copy = init();
    copy->setName(name);
    copy->setTips(m_tips);
    copy->setTopControlsView(topControlsView);
    return copy;
}

void BaseEffect::read(const CIDictionary& dictionary)
{
    for (const auto& [key, value] : dictionary) {
        if (key == "Name")
            setName(value.toString());
        else if (key == "Tips")
            setTips(value.toString());
        else if (key == "startPT.x")
            m_startPT.x = value.toFloat();
        else if (key == "startPT.y")
            m_startPT.y = value.toFloat();
    }
}

CIDictionary BaseEffect::save() const
{
    return {{"Name", name}, {"Tips", m_tips}, {"startPT.x", float(m_startPT.x)}, {"startPT.y", float(m_startPT.y)},
        {"class", className()}};
}

BaseEffect::LaterImage BaseEffect::laterDrawImage()
{
    return [image = getDrawImage()](CIRenderControl*) { return image; };
}

QImage BaseEffect::drawPart(const quartz::Part& part) { return renderedPart(getDrawImage(), part); }

QSizeF BaseEffect::sizeOf(const CIImage& image)
{
    const CIRect extent = image.extent();
    return extent.isInfinite() || extent.isEmpty() ? QSizeF(0, 0) : QSizeF(extent.width, extent.height);
}

QImage BaseEffect::renderedPart(const CIImage& image, const quartz::Part& part)
{
    if (image.isNull() || part.size.isEmpty())
        return {};
    static const CIContext context;
    auto bitmap =
        std::make_unique<CIBitmap>(part.size.width(), part.size.height(), CIFormat::BGRA8, CIAlpha::Premultiplied);
    const CIRect extent = image.extent();
    const bool atOrigin = extent.isInfinite() || (extent.x == 0 && extent.y == 0);
    const CIImage moved = atOrigin ? image : image.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
    context.renderInto(*bitmap, part.left, part.top, moved, part.scale);
    const auto* pixels = reinterpret_cast<const uchar*>(std::as_const(*bitmap).row(0));
    const auto release = [](void* kept) { delete static_cast<CIBitmap*>(kept); };
    const qsizetype bytesPerRow = qsizetype(bitmap->bytesPerRow());
    return QImage(pixels, part.size.width(), part.size.height(), bytesPerRow, QImage::Format_ARGB32_Premultiplied,
        release, bitmap.release());
}

UndoManager* BaseEffect::undoManager()
{
    EffectMaster* master = EffectMaster::mainController();
    return master ? master->undoManager() : nullptr;
}
