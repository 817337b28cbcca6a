#include "effects2d/BaseEffect.h"

#include "effects2d/EffectMaster.h"
#include "effects2d/EffectPanel.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UndoManager.h"

const EffectDeclaration& BaseEffect::declaration() const
{
    static const EffectDeclaration declared{"BaseEffect", "", ""};
    return declared;
}

void BaseEffect::awakeFromNib()
{
    setName(declaration().name);
    setTips(declaration().tips);
    m_startPT = declaration().startPoint;
    for (const EffectParameter& parameter : declaration().parameters)
        if (!parameter.facts.start.isNothing())
            parameter.setValue(*this, parameter.facts.start);
}

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

std::shared_ptr<BaseEffect> BaseEffect::mycopy() const
{
    std::shared_ptr<BaseEffect> copy = copyWithZone();
    for (const EffectParameter& parameter : declaration().parameters)
        if (parameter.facts.copied)
            parameter.setValue(*copy, parameter.value(*this));
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
    for (const EffectParameter& parameter : declaration().parameters)
        parameter.read(*this, dictionary);
}

CIDictionary BaseEffect::save() const
{
    CIDictionary dictionary{{"Name", name}, {"Tips", m_tips}, {"startPT.x", float(m_startPT.x)},
        {"startPT.y", float(m_startPT.y)}, {"class", className()}};
    for (const EffectParameter& parameter : declaration().parameters)
        parameter.save(*this, dictionary);
    return dictionary;
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

void BaseEffect::post(const char* other) const
{
    NotificationCenter::defaultCenter().postNotificationName(QString::fromLatin1(other ? other : notification()));
}

void BaseEffect::registerUndoInvocation(const QString& what, std::function<void()> invocation)
{
    if (UndoManager* undo = undoManager()) {
        undo->registerUndoWithTarget(this, std::move(invocation));
        undo->setActionName(what);
    }
}

// --- parameters ---

const EffectParameter* BaseEffect::parameterIn(const void* field) const
{
    const std::vector<EffectParameter>& all = declaration().parameters;
    const auto found =
        std::ranges::find_if(all, [&](const EffectParameter& parameter) { return parameter.field(*this) == field; });
    return found == all.end() ? nullptr : &*found;
}

void BaseEffect::change(const void* field, EffectControl* sender)
{
    if (const EffectParameter* parameter = parameterIn(field))
        changeParameter(*parameter, sender);
}

void BaseEffect::restore(const void* field, const CIValue& value, EffectControl* sender)
{
    if (const EffectParameter* parameter = parameterIn(field))
        restoreParameter(parameter, value, sender);
}

void BaseEffect::registerOldValue(const EffectParameter& parameter, EffectControl* sender)
{
    registerUndo(EffectPanel::undoName(parameter.text), &BaseEffect::restoreParameter, &parameter,
        parameter.value(*this), QPointer(sender));
}

void BaseEffect::changeParameter(const EffectParameter& parameter, EffectControl* sender)
{
    registerOldValue(parameter, sender);
    parameter.setValue(*this, parameter.chosen(sender->value()));
    parameterChanged(parameter.facts);
    post();
}

void BaseEffect::restoreParameter(const EffectParameter* parameter, CIValue value, QPointer<EffectControl> sender)
{
    registerOldValue(*parameter, sender);
    parameter->setValue(*this, value);
    if (sender)
        sender->setValue(parameter->shown(value));
    parameterChanged(parameter->facts);
    post(parameter->facts.undoneTells);
}

// --- controls ---

void BaseEffect::setUpControlsView()
{
    if (!topControlsView)
        return;
    try {
        buildControls(EffectPanel::placedIn(*topControlsView));
    } catch (const std::exception& error) {
        qWarning("%s", error.what());
    }
}

void BaseEffect::buildControls(EffectPanel& panel)
{
    for (const EffectParameter& parameter : declaration().parameters)
        if (parameter.text.label)
            panel.addParameter(parameter, parameter.value(*this),
                action([this, &parameter](EffectControl* sender) { changeParameter(parameter, sender); }));
}
