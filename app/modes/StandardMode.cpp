#include "app/modes/StandardMode.h"

#include "app/catalogue/FilterCatalogue.h"
#include "app/catalogue/FilterMaker.h"
#include "app/catalogue/Looks.h"
#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "app/document/Document.h"
#include "app/document/SessionFolder.h"
#include "app/modes/FilterOptions.h"
#include "app/modes/FilterPanel.h"
#include "app/modes/InputValues.h"
#include "app/modes/StoredInputs.h"
#include "controls/panel/FilterNames.h"
#include "controls/picture/ControlPoints.h"
#include "controls/picture/MyImageView.h"
#include "platform/chain/Baking.h"
#include "platform/chain/FilterChain.h"
#include "platform/chain/Layers.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace {

constexpr int kPanelTag = 111;

CIImage movedToOrigin(const CIImage& image)
{
    const CIRect extent = image.extent();
    return extent.isInfinite() ? CIImage() : image.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
}

} // namespace

StandardMode::StandardMode(const ModeParts& parts, const Tools& tools)
    : Mode(parts, {kFilterFavouritesKey, {}}, tools.document)
    , m_tools(tools)
{
    connect(&m_document, &Document::aboutToKeepPicture, this,
        [this] { m_tools.changes.dropImagesOfPastFilters(currentFilter.get()); });
    connect(&tools.options, &FilterOptions::fitAsked, this, &StandardMode::fitInputs);
    connect(&tools.options, &FilterOptions::keepSizeChanged, this, &Mode::changed);
}

// --- the filter ---

std::shared_ptr<CIFilter> StandardMode::newFilter(const std::string& name)
{
    return m_tools.filters.newFilter(name, m_document.picture(), m_tools.view.bounds());
}

void StandardMode::addFilterIndex(const QString& name, int tag)
{
    m_tools.options.filterGone();
    currentFilter = newFilter(name.toStdString());
    if (currentFilter)
        m_tools.changes.add(currentFilter);
    updateFilterControls(tag);
}

void StandardMode::choose(const OutlineItem* row)
{
    if (const auto* chosen = dynamic_cast<const FilterRow*>(row)) {
        clearControls();
        addFilterIndex(chosen->className, kPanelTag);
        m_tools.catalogue.setChosenRow(row);
        deselectFavourite();
        m_document.setWasChanged(true);
        const CIRect view = m_tools.view.bounds();
        m_tools.options.filterChosen(currentFilter, m_document.picture(), {view.width, view.height});
        return;
    }
    if (!row || !m_tools.catalogue.clicked(row))
        clear();
}

void StandardMode::chooseLook(const PictureLook* look)
{
    const FilterSettings settings = settingsOf(*look, m_document.picture());
    if (!settings.hasClass())
        return;
    clear();
    addFilterIndex(QString::fromLatin1(look->filter), kPanelTag);
    if (currentFilter)
        applySettings(settings, *currentFilter);
    updateLayout(); // the rows were made for the filter's own values
    m_document.setWasChanged(true);
    updateView();
    emit changed();
}

void StandardMode::takeSecondPicture(const CIImage& second)
{
    m_tools.filters.secondPicture = second;
    m_tools.catalogue.renewPictures();
    const std::optional<std::string> key = currentFilter ? secondPictureKey(*currentFilter) : std::nullopt;
    if (!key) {
        const QString className = QStringLiteral("CISourceOverCompositing");
        m_tools.catalogue.selectClass(className);
        choose(m_tools.catalogue.chosenRow());
        emit changed();
        return;
    }
    m_document.undoManager().beginUndoGrouping();
    m_tools.changes.setFilterValueForKey(*currentFilter, second, *key);
    m_tools.changes.setFilterValueForKey(*currentFilter, double(Placing::Fit), placingKey(*key));
    m_document.undoManager().setActionName(tr("Open as Second Picture"));
    m_document.undoManager().endUndoGrouping();
    updateView();
    updateLayout();
}

void StandardMode::dropItem()
{
    currentFilter.reset();
    m_tools.options.filterGone();
    clearControls();
}

void StandardMode::deselectRows()
{
    Mode::deselectRows();
    m_tools.catalogue.setChosenRow(nullptr);
}

CIValue StandardMode::standardValueForKey(const CIFilter& filter, const std::string& key)
{
    const std::shared_ptr<CIFilter> fresh = newFilter(filter.name());
    return fresh ? fresh->valueForKey(key) : CIValue();
}

// --- what it makes of the picture ---

bool StandardMode::hasMissingImage() const { return currentFilter && filterHasMissingImage(*currentFilter); }

CIImage StandardMode::coreImageResultForRect(const CIRect& view) const
{
    if (!currentFilter)
        return m_document.picture();
    const auto filtered = m_tools.options.keepsSize() ? filteredPictureOfSameSize : filteredPicture;
    return filtered(*currentFilter, m_document.picture(), {view.width, view.height});
}

CIImage StandardMode::coreImageResult() const
{
    return hasMissingImage() ? CIImage() : coreImageResultForRect(m_tools.view.bounds());
}

void StandardMode::updateView()
{
    m_tools.view.setNeedsDisplay();
    if (!isEdited() || hasMissingImage())
        return emit resultShown({});
    const CIRect view = m_tools.view.bounds();
    const CIImage& picture = m_document.picture();
    const CIImage result = filteredPicture(*currentFilter, picture, {view.width, view.height});
    const bool isLarger = isLargerThanPicture(*currentFilter, result, picture);
    m_tools.options.valuesChanged(isLarger);
    emit resultShown(isLarger && m_tools.options.keepsSize() ? picture.extent() : result.extent());
}

ZoomedCanvas* StandardMode::canvas() const { return &m_tools.view; }

void StandardMode::pictureChanged()
{
    m_tools.catalogue.setPicture(m_document.picture());
    updateView(); // also while another mode is on: the picture may have the same size
}

void StandardMode::apply(const std::function<void()>& done)
{
    if (currentFilter)
        m_tools.catalogue.noteUsed(QString::fromStdString(currentFilter->name()));
    const CIImage applied = movedToOrigin(coreImageResult());
    if (!applied || !currentFilter) {
        if (applied)
            replacePicture(applied);
        return done();
    }
    const auto make = [applied, context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](
                          WorkControl& control) { return bakedImage(*context, applied, format, &control.rendering); };
    m_document.work({.title = tr("Applying the filter…")}, make,
        [this, applied, done](const std::optional<CIImage>& baked, bool isCancelled) {
            if (isCancelled)
                return;
            // Pixels from here on; only where there is no memory for them the recipe itself.
            replacePicture(baked && *baked ? *baked : applied);
            done();
        });
}

// --- all inputs at once ---

bool StandardMode::hasInputsToSet(bool randomly) const
{
    if (!isEdited())
        return false;
    const std::vector<const CIInputAttributes*> inputs = usersInputs(*currentFilter);
    return std::any_of(inputs.begin(), inputs.end(),
        [randomly](const CIInputAttributes* input) { return !randomly || canBeRandom(*input); });
}

void StandardMode::resetAllInputs()
{
    if (const std::shared_ptr<CIFilter> fresh = isEdited() ? newFilter(currentFilter->name()) : nullptr)
        setAllInputs(
            tr("Reset All Inputs"), [&](const CIInputAttributes& input) { return fresh->valueForKey(input.key); },
            *fresh);
}

void StandardMode::randomizeInputs()
{
    if (!isEdited())
        return;
    std::mt19937 random(QRandomGenerator::global()->generate());
    setAllInputs(
        tr("Randomize Inputs"),
        [&](const CIInputAttributes& input) {
            return randomValue(input, currentFilter->valueForKey(input.key), m_document.picture().extent(), random);
        },
        *currentFilter);
}

void StandardMode::fitInputs()
{
    if (!isEdited())
        return;
    CIFilter fitted = *currentFilter;
    fitToPicture(fitted, m_document.picture());
    setAllInputs(
        tr("Fit to Picture"), [&](const CIInputAttributes& input) { return fitted.valueForKey(input.key); }, fitted);
}

void StandardMode::setAllInputs(
    const QString& actionName, const ParameterChanges::ValueFor& valueFor, const CIFilter& notes)
{
    m_document.undoManager().beginUndoGrouping();
    m_tools.changes.setNotes(*currentFilter, notes);
    m_tools.changes.setAllInputs(*currentFilter, actionName, valueFor);
    m_document.undoManager().endUndoGrouping();
    updateView();
    updateLayout();
}

// --- favourites and sessions ---

void StandardMode::makeFavourite(const TakeFavourite& take)
{
    const QImage thumbnail = currentFilter ? favouriteThumbnail(coreImageResult()) : QImage();
    if (!thumbnail.isNull())
        take({thumbnail, QString::fromStdString(currentFilter->displayName()), favouriteValues(*currentFilter)});
}

/// One that brings nothing counts as the selected one, too: pressed again, it takes the filter away.
void StandardMode::chooseFavourite(onlyTextClosedButton* button)
{
    const bool isSelected = button == m_selectes_FavBtn;
    Mode::chooseFavourite(button);
    if (!isSelected)
        m_selectes_FavBtn = button;
}

bool StandardMode::bringBack(const Favourite* favourite)
{
    if (!favourite)
        return false;
    clearControls();
    addFilterIndex(QString::fromStdString(favourite->valueForKey("class").toString()), 0);
    m_document.undoManager().beginUndoGrouping(); // one step of undo
    if (currentFilter) {
        forgetNotes(*currentFilter);
        for (const std::string& key : favourite->keys())
            if (const CIValue value = favourite->valueForKey(key); !value.isNothing() && takesKey(*currentFilter, key))
                m_tools.changes.setFilterValueForKey(*currentFilter, value, key);
    }
    m_document.undoManager().setActionName(QCoreApplication::translate("CustomMode", "Choose Favourite"));
    m_document.undoManager().endUndoGrouping();
    updateLayout(); // the rows were made for the filter's own values
    return true;
}

void StandardMode::save(SessionState& state, const CIImage& picture) const
{
    if (!currentFilter)
        return;
    saveInputs(*currentFilter, picture, state);
    state.values["filter"] = currentFilter->name();
}

void StandardMode::restore(const SessionState& state)
{
    dropItem();
    const QString name = QString::fromStdString(state.value("filter").toString());
    if (!name.isEmpty())
        addFilterIndex(name, kPanelTag);
    if (!currentFilter)
        return;
    restoreInputs(*currentFilter, state);
    m_tools.catalogue.selectClass(name);
    updateLayout(); // the rows were made for the filter's own values
}

// --- the panel ---

void StandardMode::updateFilterControls(int tag)
{
    if (currentFilter)
        m_tools.panel.build(currentFilter, tag);
    showTitle();
}

void StandardMode::clearControls()
{
    m_tools.panel.clear();
    showTitle();
}

void StandardMode::updateLayout()
{
    if (!std::exchange(needsUpdate, true))
        QMetaObject::invokeMethod(this, &StandardMode::rebuildPanelIfNeeded, Qt::QueuedConnection);
}

void StandardMode::rebuildPanelIfNeeded()
{
    if (!std::exchange(needsUpdate, false))
        return;
    m_tools.panel.rebuild(currentFilter, kPanelTag);
    showTitle();
}

Mode::Title StandardMode::title() const
{
    if (!currentFilter)
        return {{}, tr("Choose a filter from the list to see what it makes of the picture.")};
    Title title{shownFilterName(currentFilter->displayName()), {}};
    if (m_tools.panel.isEmpty())
        title.hint = isControlsPresent() ? tr("Drag the points on the picture.") : tr("There is nothing to set here.");
    return title;
}

bool StandardMode::isControlsPresent() const
{
    if (!currentFilter)
        return false;
    if (hasFreeLayers(*currentFilter))
        return true;
    const std::vector<std::string> keys = currentFilter->inputKeys();
    return std::any_of(keys.begin(), keys.end(), [this](const std::string& key) {
        const CIInputAttributes* input = currentFilter->attributesForKey(key);
        return input && hasControlPoint(*input);
    });
}

void StandardMode::appearanceChanged()
{
    Mode::appearanceChanged();
    m_tools.panel.dress();
}
