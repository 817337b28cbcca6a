#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "files/ResizePanel.h"
#include "platform/chain/Baking.h"
#include "platform/chain/FilterChain.h"
#include "widgets/BackgroundWork.h"

#include <initializer_list>
#include <string_view>

namespace {

const CIColor kHalfWhite(1, 1, 1, 0.5);
const CIColor kHalfBlack(0, 0, 0, 0.5);
const CIColor kHalfOrange(1, 0.5, 0, 0.5);
constexpr float kMinusQuarterPi = -0.7853982f;

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

CIImage movedToOrigin(const CIImage& image)
{
    const CIRect extent = image.extent();
    return extent.isInfinite() ? CIImage() : image.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
}

} // namespace

void Controller::showPicture()
{
    const CIImage& image = m_document.picture();
    fitZoom();
    for (const std::shared_ptr<BaseEffect>& effect : {currentCustomEffect, current3DEffect})
        if (effect)
            effect->reloadImage();
    updatePictureInfo();
    updateThumbnails();
    ResizePanel::setWHH(float(image.extent().width), float(image.extent().height));
    ciView->setNeedsDisplay(); // in the other modes, too: it may have the same size
    updateView();
    validateMenuItems();
}

void Controller::addFilterIndex(const QString& name, int index)
{
    currentFilter = newFilter(name.toStdString());
    if (currentFilter) {
        std::erase_if(m_madeFilters, [](const std::weak_ptr<CIFilter>& filter) { return filter.expired(); });
        m_madeFilters.push_back(currentFilter);
    }
    updateFilterControls(index);
}

/// With the values that a filter has when it is chosen; null for an unknown name.
std::shared_ptr<CIFilter> Controller::newFilter(const std::string& name)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
    if (filter) {
        filter->setDefaults();
        _setupAllImageInputsToNotNil(*filter);
        setAutomaticDefaults(*filter);
    }
    return filter;
}

void Controller::_setupAllImageInputsToNotNil(CIFilter& filter)
{
    setupAllImageInputsToNotNil(filter, m_document.picture());
}

void Controller::setAutomaticDefaults(CIFilter& filter)
{
    const std::string& name = filter.name();
    if (name == "CIGlassDistortion") {
        filter.setValueForKey(defaultTexture(), "inputTexture");
    } else if (name == "CIRippleTransition") {
        filter.setValueForKey(defaultAlphaEMap(), "inputShadingImage");
    } else if (name == "CIPageCurlTransition") {
        filter.setValueForKey(defaultAlphaEMap(), "inputShadingImage");
        filter.setValueForKey(kMinusQuarterPi, "inputAngle");
    } else if (name == "CIShadedMaterial") {
        filter.setValueForKey(defaultShadingEMap(), "inputShadingImage");
    } else if (name == "CIColorMap") {
        filter.setValueForKey(defaultRamp(), "inputGradientImage");
    } else if (name == "CIDisintegrateWithMaskTransition") {
        filter.setValueForKey(defaultMask(), "inputMaskImage");
    } else if (name == "CICircularWrap") {
        const CIRect bounds = ciView->bounds();
        filter.setValueForKey(
            CIVector{float(bounds.x + bounds.width * 0.5), float(bounds.y + bounds.height * 0.5)}, "inputCenter");
    } else if (isOneOf(name,
                   {"CIGaussianGradient", "CILinearGradient", "CIRadialGradient", "CIStripesGenerator",
                       "CICheckerboardGenerator"})) {
        filter.setValueForKey(kHalfWhite, "inputColor0");
        filter.setValueForKey(kHalfBlack, "inputColor1");
    } else if (name == "CIConstantColorGenerator") {
        filter.setValueForKey(kHalfOrange, "inputColor");
    }
}

bool Controller::filterHasMissingImage(const CIFilter& filter) const { return ::filterHasMissingImage(filter); }

bool Controller::hasMissingImage() const { return currentFilter && filterHasMissingImage(*currentFilter); }

CIImage Controller::coreImageResultForRect(const CIRect& rect)
{
    return currentFilter ? filteredPicture(*currentFilter, m_document.picture(), {rect.width, rect.height})
                         : m_document.picture();
}

CIImage Controller::coreImageResult(bool overBlack)
{
    if (hasMissingImage())
        return {};
    const CIImage result = coreImageResultForRect(ciView->bounds());
    return overBlack ? ::overBlack(result) : result;
}

void Controller::applyBtn()
{
    if (isOpening())
        return;
    if (filerMode() == Standard) {
        if (CIImage applied = movedToOrigin(coreImageResult(false))) {
            if (currentFilter) {
                WorkControl control(1);
                CIImage baked;
                workInBackground(&m_window, tr("Applying the filter…"), control, [&] {
                    baked = bakedImage(*m_document.context(), applied, m_document.format(), &control.rendering);
                });
                if (control.isCancelled())
                    return;
                // Pixels from here on; only where there is no memory for them the recipe itself.
                if (baked)
                    applied = baked;
            }
            m_document.replacePicture(applied, tr("Apply"));
            m_document.setWasChanged(true);
        }
    } else if (filerMode() == ThreeD) {
        apply3D();
    } else if (!applyCustom()) {
        return;
    }
    clearAllAndUpdate();
}
