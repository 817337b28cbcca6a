// Standard mode.
#pragma once

#include "app/modes/Mode.h"
#include "app/modes/ParameterChanges.h"
#include "platform/coreimage/CIFilter.h"

class FilterCatalogue;
class FilterMaker;
class FilterOptions;
class FilterPanel;
class MyImageView;
struct PictureLook;

/// Shows the picture through one filter of the catalogue.
class StandardMode : public Mode {
    Q_OBJECT

public:
    /// What the mode works with; all of it outlives the mode.
    struct Tools {
        Document& document;
        FilterMaker& filters;
        ParameterChanges& changes;
        FilterCatalogue& catalogue;
        FilterPanel& panel;
        FilterOptions& options;
        MyImageView& view;
    };
    StandardMode(const ModeParts& parts, const Tools& tools);

    const std::shared_ptr<CIFilter>& filter() const { return currentFilter; }
    /// False while another mode is on.
    bool isEdited() const { return isOn() && currentFilter; }
    /// Makes the filter of that class the current one, with a panel that has the tag.
    void addFilterIndex(const QString& name, int tag);
    /// What a new one like the current filter holds.
    CIValue standardValueForKey(const CIFilter& filter, const std::string& key);
    bool hasMissingImage() const;
    /// The recipe of the picture through the filter. Null when the filter lacks an image.
    CIImage coreImageResult() const;
    CIImage coreImageResultForRect(const CIRect& view) const;

    /// Makes the look's filter the current one, with the look's values on the present picture.
    void chooseLook(const PictureLook* look);

    /// Puts it into the filter's own second picture, as large as it is seen whole; a filter that has none gives way to
    /// one that lays it over the picture. Filters that blend start with it from now on. An undo step.
    void takeSecondPicture(const CIImage& second);

    // --- all inputs at once, if the filter is edited ---

    /// Whether there are inputs that the operations below would set.
    bool hasInputsToSet(bool randomly) const;
    /// To what they hold when such a filter is newly chosen.
    void resetAllInputs();
    /// To values that sliders and picture have room for; pictures stay.
    void randomizeInputs();
    /// To values that fit the picture.
    void fitInputs();

    // --- the panel ---

    /// Builds the rows of the current filter; nothing without one.
    void updateFilterControls(int tag);
    void clearControls();
    /// True when the filter has inputs that are edited on the picture.
    bool isControlsPresent() const;
    /// The panel is to show the present values, soon.
    void updateLayout();
    void rebuildPanelIfNeeded();

    bool hasItem() const override { return currentFilter != nullptr; }
    void choose(const OutlineItem* row) override;
    void save(SessionState& state, const CIImage& picture) const override;
    void restore(const SessionState& state) override;
    void updateView() override;
    ZoomedCanvas* canvas() const override;
    void pictureChanged() override;
    void apply(const std::function<void()>& done) override;
    void makeFavourite(const TakeFavourite& take) override;
    void chooseFavourite(onlyTextClosedButton* button) override;
    void appearanceChanged() override;

signals:
    /// Where the result lies in the picture; empty for none.
    void resultShown(const CIRect& extent);

protected:
    Title title() const override;
    CIImage shownImage() override { return hasItem() ? coreImageResult() : CIImage(); }
    void dropItem() override;
    bool bringBack(const Favourite* favourite) override;
    void deselectRows() override;

private:
    std::shared_ptr<CIFilter> newFilter(const std::string& name);
    void setAllInputs(const QString& actionName, const ParameterChanges::ValueFor& valueFor, const CIFilter& notes);

    Tools m_tools;
    std::shared_ptr<CIFilter> currentFilter;
    bool needsUpdate = false;
};
