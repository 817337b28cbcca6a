#include "app/modes/CustomMode.h"

#include "app/catalogue/Thumbnail.h"
#include "app/document/Document.h"
#include "effects2d/CustomEffects.h"
#include "effects2d/customEffImageView.h"
#include "platform/chain/Baking.h"

#include <algorithm>

CustomMode::CustomMode(const ModeParts& parts, customEffImageView& view, Mode& family, Document& document)
    : EffectMode(parts, EffectList(customEffectPrototypes(), EffectList::Marks::Mousing), "effectCustom",
        {QStringLiteral("CustomEffectsFavorites"), {}}, document)
    , m_view(view)
    , m_family(family)
{
    m_view.awakeFromNib();
}

void CustomMode::updateView() { m_view.redraw(); }

ZoomedCanvas* CustomMode::canvas() const { return &m_view; }

Mode::Title CustomMode::title() const
{
    if (!hasItem())
        return {{}, tr("Choose an effect from the list to draw it over the picture or over a color.")};
    const EffectDeclaration& declared = effect()->declaration();
    if (effect()->isMousing())
        return {effectName(), tr("Drag on the picture to move the effect. The arrow keys move it as well.")};
    if (declared.hint)
        return {effectName(), QCoreApplication::translate("BaseEffect", declared.hint)};
    const bool isEmpty = std::ranges::none_of(declared.parameters, [](const auto& row) { return row.text.label; });
    return {effectName(), isEmpty ? tr("There is nothing to set here.") : QString()};
}

CIImage CustomMode::shownImage() { return hasItem() ? effect()->getDrawImage() : CIImage(); }

/// Generated pictures take long at full size.
BaseEffect::LaterImage CustomMode::laterFinishedImage()
{
    if (!hasItem())
        return EffectMode::laterFinishedImage();
    return [draw = effect()->laterDrawImage(), source = m_document.picture()](CIRenderControl* control) {
        const CIImage drawn = draw(control);
        return drawn || (control && control->isCancelled()) ? drawn : source;
    };
}

void CustomMode::apply(const std::function<void()>& done)
{
    if (!hasItem())
        return done();
    const auto make = [draw = effect()->laterDrawImage(), context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](WorkControl& control) {
        const CIImage drawn = draw(&control.rendering);
        const CIImage baked = bakedImage(*context, drawn, format, &control.rendering);
        makeReducedCopies(baked);
        return baked ? baked : drawn;
    };
    m_document.work({.title = tr("Applying the effect…")}, make,
        [this, done](const std::optional<CIImage>& applied, bool isCancelled) {
            if (isCancelled)
                return;
            if (applied && *applied)
                replacePicture(*applied);
            done();
        });
}

void CustomMode::makeFavourite(const TakeFavourite& take)
{
    if (!hasItem())
        return;
    const auto make = [draw = effect()->laterDrawImage()](
                          WorkControl& control) { return favouriteThumbnail(draw(&control.rendering)); };
    m_document.work(
        {.title = tr("Drawing the favourite…")}, make, [this, take](const std::optional<QImage>& thumbnail, bool) {
            if (thumbnail && !thumbnail->isNull() && hasItem())
                take({*thumbnail, QString::fromStdString(effect()->tips()), {}, effect()->mycopy()});
        });
}

void CustomMode::chooseFavourite(onlyTextClosedButton* button)
{
    m_document.undoManager().registerUndoWithTarget(
        this, [this, previous = m_selectes_FavBtn] { m_family.chooseFavourite(previous); });
    m_document.undoManager().setActionName(tr("Choose Favourite"));
    EffectMode::chooseFavourite(button);
}
