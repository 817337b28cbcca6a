// The main window's controller: the center of the program.
#pragma once

#include "app/catalogue/FilterCatalogue.h"
#include "app/catalogue/FilterMaker.h"
#include "app/commands/Commands.h"
#include "app/document/BitmapDescription.h"
#include "app/document/Clipboard.h"
#include "app/document/Cropping.h"
#include "app/document/Document.h"
#include "app/document/DraggingOut.h"
#include "app/document/Exporting.h"
#include "app/document/Opening.h"
#include "app/document/Printing.h"
#include "app/document/Resizing.h"
#include "app/document/Saving.h"
#include "app/document/Session.h"
#include "app/document/Turning.h"
#include "app/modes/CustomMode.h"
#include "app/modes/FilterOptions.h"
#include "app/modes/FilterPanel.h"
#include "app/modes/ModeSwitch.h"
#include "app/modes/ParameterChanges.h"
#include "app/modes/StandardMode.h"
#include "app/modes/ThreeDMode.h"
#include "app/window/AboutWindow.h"
#include "app/window/Closing.h"
#include "app/window/Comparing.h"
#include "app/window/HelpWindow.h"
#include "app/window/MainWindow.h"
#include "app/window/OpeningView.h"
#include "app/window/StatusRow.h"
#include "app/window/Zooming.h"
#include "controls/panel/BezelStyle.h"
#include "controls/panel/ParameterMaster.h"
#include "controls/picture/ImageViewMaster.h"
#include "effects2d/CustomViewMaster.h"
#include "effects2d/EffectMaster.h"
#include "effects3d/OGLViewMaster.h"
#include "files/ImageInfo.h"
#include "files/ResizePanel.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/Appearance.h"

#include <QAction>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class LooksPopup;
class MyImageView;
class MyOGLView;
class OutlineView;
class QAbstractButton;
class customEffImageView;

namespace Ui {
class MainWindow;
}

/// Holds the picture and the current effect of each mode, and carries out what menus, buttons and views ask for.
/// One lives for as long as the program. Operations that lack their input (no picture, no filter) quietly do nothing.
///
/// Changes of the user register their inverse with the undo manager. Main thread only.
class Controller : public QObject,
                   public ImageViewMaster,
                   public ParameterMaster,
                   public EffectMaster,
                   public OGLViewMaster,
                   public CustomViewMaster,
                   public ResizeMaster {
    Q_OBJECT

public:
    using enum ModeSwitch::FilterMode;
    using TerminateReply = Closing::TerminateReply;
    using BitmapDescription = ::BitmapDescription;

    explicit Controller(MainWindow& window);
    ~Controller() override;

    static Controller* mainController();
    static bool isDarkMode() { return Appearance::shared().isDark(); }

    /// Start-up, once the window's interface is there.
    void awakeFromNib();

    // Modes
    unsigned filerMode() const { return m_modes.filerMode(); }
    void changeFilterMode(QAbstractButton* sender) { m_modes.changeFilterMode(sender); }
    void selectMenuMode(int tag) { m_modes.selectMenuMode(tag); }
    void adjustViewsAndTabs() { m_modes.showCurrent(); }
    void escapeEffect();
    void clearAll() { m_modes.current().clear(); }
    void clearAllAndUpdate() { m_modes.clearAllAndUpdate(); }
    void onAppearanceChanged() { m_modes.appearanceChanged(); }
    bool hasCurrentItem() const { return m_modes.current().hasItem(); }

    // Lists
    /// `clicked` is the row that was clicked if it can't be selected (a group), else null.
    void outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked = nullptr);
    void outlineViewSelectionDidChange_CIF(const OutlineItem* item) { m_standard.choose(item); }
    void outlineViewSelectionDidChange_3D(const OutlineItem* item) { m_threeD.choose(item); }
    void outlineViewSelectionDidChange_Custom(const OutlineItem* item) { m_custom.choose(item); }
    void thumbnailsToggled() { m_catalogue.thumbnailsToggled(); }
    void columnsToggled();

    // The picture and what is made of it
    /// Makes it the picture (null for none) and fits the views to it.
    void setBackgroundImage(const CIImage& image) { m_document.setPicture(image); }
    CIImage backImage() override { return m_document.picture(); }
    CIImage filteredImage() const { return {}; } // results are never kept
    CIRect getBgImageExtent() const override { return m_document.picture().extent(); }
    std::shared_ptr<CIFilter> getCurrentFilter() override { return m_standard.filter(); }
    BaseEffect* getCurrent3DEffect() override { return m_threeD.effect(); }
    BaseEffect* getCurrentCustomEffect() override { return m_custom.effect(); }
    void addFilterIndex(const QString& name, int index) { m_standard.addFilterIndex(name, index); }
    void _setupAllImageInputsToNotNil(CIFilter& filter) { setupAllImageInputsToNotNil(filter, backImage()); }
    void setAutomaticDefaults(CIFilter& filter);
    bool filterHasMissingImage(const CIFilter& filter) const { return ::filterHasMissingImage(filter); }
    bool hasMissingImage() const { return m_standard.hasMissingImage(); }
    CIImage coreImageResultForRect(const CIRect& rect) { return m_standard.coreImageResultForRect(rect); }
    CIImage coreImageResult(bool overBlack) override;
    void applyBtn();
    CIImage defaultTexture() { return m_filters.texture.image(); }
    CIImage defaultShadingEMap() { return m_filters.shadingemap.image(); }
    CIImage defaultAlphaEMap() { return m_filters.alphaemap.image(); }
    CIImage defaultRamp() { return m_filters.ramp.image(); }
    CIImage defaultMask() { return m_filters.mask.image(); }
    QString defaultTexturePath() const { return m_filters.texture.path(); }
    QString defaultShadingEMapPath() const { return m_filters.shadingemap.path(); }
    QString defaultAlphaEMapPath() const { return m_filters.alphaemap.path(); }
    QString defaultRampPath() const { return m_filters.ramp.path(); }
    QString defaultMaskPath() const { return m_filters.mask.path(); }

    // Parameters and undo
    void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key) override
    {
        m_changes.setFilterValueForKey(filter, value, key);
        m_document.setUnsaved();
    }
    void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key) override
    {
        m_changes.setDictValueForKey(dictionary, value, key);
    }
    void setActionNameForFilterKey(const CIFilter& filter, const std::string& key) override
    {
        m_changes.setActionNameForFilterKey(filter, key);
    }
    void beginChange() override { m_undoManager.beginUndoGrouping(); }
    void endChange() override { m_undoManager.endUndoGrouping(); }
    CIValue standardValueForKey(const CIFilter& filter, const std::string& key) override
    {
        return m_standard.standardValueForKey(filter, key);
    }
    double sliderGrowthForKey(const CIFilter& filter, const std::string& key) override;
    void pickPlace(std::function<void(std::optional<CIPoint>)> take) override;
    void fitInputs() { m_standard.fitInputs(); }
    void resetAllInputs() { m_standard.resetAllInputs(); }
    void randomizeInputs() { m_standard.randomizeInputs(); }
    bool hasInputsToSet(bool randomly) const { return m_standard.hasInputsToSet(randomly); }
    UndoManager* undoManager() override { return &m_undoManager; }
    void undo() { m_document.goInHistory(-1); }
    void redo() { m_document.goInHistory(1); }

    // The panel
    void updateFilterControls(int tag) { m_standard.updateFilterControls(tag); }
    void clearControls() { m_standard.clearControls(); }
    bool isControlsPresent() override { return m_standard.isControlsPresent(); }
    void changeControlsStyle(QWidget* view) { squareButtons(*view); }

    // Edits and zoom
    void rotateLeft() { rotateImage(true); }
    void rotateRight() { rotateImage(false); }
    void flipHorizont() { flipImage(false); }
    void flipVert() { flipImage(true); }
    void rotateImage(bool left) { m_turning.rotate(left); }
    void flipImage(bool vertical) { m_turning.flip(vertical); }
    void resizeImageHeight(float width, float height) override { m_resizing.resize(width, height); }
    void cropImage() { m_cropping.askForCrop(); }
    void straightenImage() { m_cropping.askForAngle(); }
    bool canCropImage() const { return m_cropping.canAsk(); }
    void copy() { m_clipboard.copy(); }
    void paste() { m_clipboard.paste(); }
    void undoPaste(const CIImage& image) { m_document.replaceByForeignPicture(image); }
    Zooming& zooming() { return m_zooming; }
    void zoomChanged() { m_zooming.takeSlider(); }
    void setZoom(float zoom) override { m_zooming.takeZoom(zoom); } // moves the slider only
    void updateZoommWithDelta(double delta) override { m_zooming.zoomBy(delta); }

    // Before and after
    bool canCompare() const { return m_comparing.isPossible(); }
    CIImage comparedImage() override { return m_comparing.comparedImage(); }
    void compareOpened(); // or no longer, as the menu item says
    void compare(bool held) { m_comparing.compare(held); }
    void splitView() { m_comparing.split(); }

    // Files
    void openImg() { m_opening.runPanel(m_window); }
    void openImgPanelDidEnd(int returnCode, const QStringList& files) { m_opening.panelDidEnd(returnCode, files); }
    void setFilePath(const QString& path) { m_document.setFilePath(path); } // empty for none
    QString getFilePath() const { return m_document.filePath(); }
    void updateWinTitle() { m_window.showTitle(m_document.filePath(), m_document.mayLoseWork()); }
    void showReadFailure(const QString& path) override { m_status.showReadFailure(path); }
    QStringList pictureNameFilters() override { return Opening::nameFilters(); }
    void openFile(const QString& path) { m_opening.open(path); }
    void revertToOpenedFile() { m_opening.revert(); }
    void openDroppedFile(const QString& path) { m_opening.openDropped(path, true); }
    void takeDroppedFile(const QString& path) override { m_opening.openDropped(path, false); }
    void cancelOpening() { m_opening.cancel(); }
    Opening& opening() { return m_opening; }
    bool isOpening() const { return m_document.state() == Document::State::Opening; }
    void openSecondPicture()
    {
        m_opening.runSecondPanel(m_window, [this](const QString& path) { takeSecondPicture(path); });
    }
    /// The picture of the file becomes the second one of the filter, in standard mode.
    void takeSecondPicture(const QString& path) override;
    void readImage(const QString& path, std::function<void(const CIImage&)> take) override;

    // Saving and exporting
    void initExportFormats() { m_saving.initExportFormats(); }
    void saveImg() { m_saving.save(); }
    void saveImgAs() { runSavePanel(); }
    void exportImg() { m_exporting.run(); }
    void printImg() { m_printing.run(); }
    DraggingOut& draggingOut() { return m_draggingOut; }
    void runSavePanel() { m_saving.runPanel(); }
    void savePanelDidEnd(int returnCode, const QString& path) { m_saving.panelDidEnd(returnCode, path); }
    bool saveExistFile() { return m_saving.saveExistFile(); }
    bool simplySaveResolutionPath(int index, double, const QString& path) { return m_saving.simplySave(index, path); }
    void createPDFFileResolution(const QString& path, double) { m_saving.createPDFFile(path); }
    CIImage getEffectedImage() { return m_modes.current().finishedImage(); }
    BaseEffect::LaterImage laterEffectedImage() { return m_modes.current().laterFinishedImage(); }
    /// The pixels of the finished picture; null without one. Blocks.
    CIBitmap createObjectImage();
    CIBitmap createObjectImage(double) { return createObjectImage(); } // the resolution means nothing to pixels
    /// The source picture. Images here have no rows to be upside down, so `flipped` changes nothing.
    CIImage getImage(bool) const { return m_document.picture(); }
    /// The pixels of the source picture, top row first; null without one.
    CIBitmap getCGImage();
    static void getBitmapBmpBitmap(const CIBitmap& bitmap, BitmapDescription& to) { describeBitmap(bitmap, to); }

    // Favourites
    /// Of the current mode.
    void addFavourite();
    /// The one that is switched on in the current mode.
    void removeSelectedFavourite();
    void showLooks();
    bool hasSelectedFavourite() const { return m_modes.current().selectedFavourite(); }
    void addFavorites() { m_standard.addFavourite(); }
    void addFavorites3D() { m_threeD.addFavourite(); }
    void addFavoritesCustom() { m_custom.addFavourite(); }
    void filterChanged(onlyTextClosedButton* sender) { m_standard.chooseFavourite(sender); }
    void filterChanged3D(onlyTextClosedButton* sender) { m_threeD.chooseFavourite(sender); }
    void filterChangedCustom(onlyTextClosedButton* sender) { m_custom.chooseFavourite(sender); }
    void removeFavorites(onlyTextClosedButton* sender) { m_standard.removeFavourite(sender); }
    void removeFavorites3D(onlyTextClosedButton* sender) { m_threeD.removeFavourite(sender); }
    void removeFavoritesCustom(onlyTextClosedButton* sender) { m_custom.removeFavourite(sender); }
    void saveFavorites() { m_modes.saveFavourites(); }
    void readFavorites() { m_modes.readFavourites(); }
    void saveFavoritesCI() { m_standard.favourites().save(); }
    void readFavoritesCI() { m_standard.favourites().read(); }
    void saveFavorites3D() { m_threeD.favourites().save(); }
    void readFavorites3D() { m_threeD.favourites().read(); }
    void saveFavoritesCustom() { m_custom.favourites().save(); }
    void readFavoritesCustom() { m_custom.favourites().read(); }

    // Buttons, menus and views
    void updateView() override { m_modes.current().updateView(); }
    void updateLayout() { m_standard.updateLayout(); }
    void updateMainBtnState();
    /// Enables, names and ticks the item; answers whether it is enabled.
    bool validateMenuItem(QAction& item) { return m_window.commands().validate(item); }
    void validateMenuItems() { m_window.commands().validateAll(); }
    MainWindow& window() { return m_window; }
    QMenu* contextMenu() override { return contentMenuOutlet; }
    // Shown, or hidden when they are there already
    void showInfoPanel() { MainWindow::togglePanel(*infoPanel); }
    void showResizePanel() { MainWindow::togglePanel(*m_resizePanel); }
    bool isInfoPanelShown() const { return infoPanel && infoPanel->isVisible(); }
    bool isResizePanelShown() const { return m_resizePanel && m_resizePanel->isVisible(); }
    void fillRecentMenu(QMenu& menu);
    void fillUndoHistoryMenu(QMenu& menu);
    void showPreferences();
    void displayHelp() { HelpWindow::show(m_window); }
    void orderFrontAboutPanel() { AboutWindow(&m_window).exec(); }

    // Window and application
    bool windowShouldClose() const { return m_closing.windowShouldClose(); }
    bool closesWindow() { return m_closing.closesWindow(); } // or says why not, or asks
    void windowWillClose() { m_closing.windowWillClose(); }
    void windowDidResize() { m_modes.windowResized(); }
    void windowDidUpdate() { m_standard.rebuildPanelIfNeeded(); }
    void windowDidBecomeVisible() { m_zooming.fit(); } // only now the picture's area has its size
    void keyUp(int key);
    void applicationDidFinishLaunching();
    void applicationDidBecomeActive() { updateMainBtnState(); }
    TerminateReply applicationShouldTerminate() { return m_closing.applicationShouldTerminate(); }
    void applicationWillTerminate() { m_closing.applicationWillTerminate(); }
    void terminate() { m_closing.terminate(); }
    bool desktopSessionEnds(const std::function<bool()>& mayAsk) { return m_closing.desktopSessionEnds(mayAsk); }

    Document& document() { return m_document; }
    bool wasChanged() const { return m_document.wasChanged(); }

    Session& session() { return m_session; }

private:
    void connectDocument();
    void connectInterface();
    void chooseEffect(const QString& className);
    void showPicture();
    void showItem();
    void pathChanged();

    MainWindow& m_window;
    Ui::MainWindow& ui;
    Document m_document;
    StatusRow m_status;
    Opening m_opening;
    Turning m_turning;
    Resizing m_resizing;
    Cropping m_cropping;
    Clipboard m_clipboard;
    Saving m_saving;
    Exporting m_exporting;
    Printing m_printing;
    Session m_session;
    UndoManager& m_undoManager; // the document's

    // The interface, by the names under which it is known.
    MyImageView* ciView;
    MyOGLView* openGLView;
    customEffImageView* customEffectsView;
    DraggingOut m_draggingOut;
    QMenu* contentMenuOutlet;
    QPointer<ResizePanel> m_resizePanel;
    QPointer<ImageInfo> infoPanel;
    QPointer<LooksPopup> m_looks;

    FilterMaker m_filters;
    ParameterChanges m_changes;
    FilterCatalogue m_catalogue;
    FilterPanel m_panel;
    FilterOptions m_options;
    StandardMode m_standard;
    ThreeDMode m_threeD;
    CustomMode m_custom;
    ModeSwitch m_modes;
    Zooming m_zooming;
    Comparing m_comparing;
    OpeningView m_openingView;
    Closing m_closing;
};
