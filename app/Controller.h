// The main window's controller: the center of the program.
#pragma once

#include "app/catalogue/FilterCatalogue.h"
#include "app/catalogue/FilterMaker.h"
#include "app/document/Document.h"
#include "app/modes/CustomMode.h"
#include "app/modes/FilterPanel.h"
#include "app/modes/ModeSwitch.h"
#include "app/modes/ParameterChanges.h"
#include "app/modes/StandardMode.h"
#include "app/modes/ThreeDMode.h"
#include "controls/panel/BezelStyle.h"
#include "controls/panel/ParameterMaster.h"
#include "controls/picture/ImageViewMaster.h"
#include "effects2d/CustomViewMaster.h"
#include "effects2d/EffectMaster.h"
#include "effects3d/OGLViewMaster.h"
#include "files/ImageInfo.h"
#include "files/ResizePanel.h"
#include "platform/chain/FilterChain.h"
#include "platform/imageio/Result.h"

#include <QAction>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class MainWindow;
class MyImageView;
class MyOGLView;
class OutlineView;
class QAbstractButton;
class QLabel;
class QSessionManager;
class QSlider;
class SessionJournal;
class customEffImageView;
struct PictureRead;
struct SessionState;

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
    enum class TerminateReply { Now, Cancel };

    explicit Controller(MainWindow& window);
    ~Controller() override;

    static Controller* mainController();
    static bool isDarkMode();

    /// Start-up, once the window's interface is there.
    void awakeFromNib();

    // Modes
    unsigned filerMode() const { return m_modes.filerMode(); }
    void changeFilterMode(QAbstractButton* sender) { m_modes.changeFilterMode(sender); }
    void selectMenuMode(const QAction* sender) { m_modes.selectMenuMode(sender->data().toInt()); }
    void adjustViewsAndTabs() { m_modes.showCurrent(); }
    void escapeEffect();
    void clearAll() { m_modes.current().clear(); }
    void clearAllAndUpdate() { m_modes.clearAllAndUpdate(); }
    void onAppearanceChanged();
    bool hasCurrentItem() const { return m_modes.current().hasItem(); }

    // Lists
    /// `clicked` is the row that was clicked if it can't be selected (a group), else null.
    void outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked = nullptr);
    void outlineViewSelectionDidChange_CIF(const OutlineItem* item) { m_standard.choose(item); }
    void outlineViewSelectionDidChange_3D(const OutlineItem* item) { m_threeD.choose(item); }
    void outlineViewSelectionDidChange_Custom(const OutlineItem* item) { m_custom.choose(item); }
    void thumbnailsToggled() { m_catalogue.thumbnailsToggled(); }

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
    void resetAllInputs() { m_standard.resetAllInputs(); }
    void randomizeInputs() { m_standard.randomizeInputs(); }
    bool hasInputsToSet(bool randomly) const { return m_standard.hasInputsToSet(randomly); }
    UndoManager* undoManager() override { return &m_undoManager; }
    void undo() { goInUndoHistory(-1); }
    void redo() { goInUndoHistory(1); }

    // All steps in a menu: ControllerUndoHistory.cpp
    /// So many redos, or undos when negative; fewer when there are no more.
    void goInUndoHistory(int moves);

    // The panel
    void updateFilterControls(int tag) { m_standard.updateFilterControls(tag); }
    void clearControls() { m_standard.clearControls(); }
    bool isControlsPresent() override { return m_standard.isControlsPresent(); }
    void changeControlsStyle(QWidget* view) { squareButtons(*view); }

    // Edits and zoom: ControllerEdits.cpp
    void rotateLeft() { rotateImage(true); }
    void rotateRight() { rotateImage(false); }
    void flipHorizont() { flipImage(false); }
    void flipVert() { flipImage(true); }
    void rotateImage(bool left);
    /// Its undo flips in the other direction, which leaves the picture turned by half a turn.
    void flipImage(bool vertical);
    /// Rounded to whole pixels; tells the user when there is no room for so many.
    void resizeImageHeight(float width, float height) override;
    void copy();
    void paste();
    void undoPaste(const CIImage& image) { m_document.replaceByForeignPicture(image); }
    void zoomChanged();
    void setZoom(float zoom) override; // moves the slider only
    void updateZoommWithDelta(double delta) override;
    void zoomTo(float zoom); // slider and view
    bool canZoom() const { return m_modes.current().canvas(); }
    void zoomIn();
    void zoomOut();
    void zoomToFit();

    // Before and after
    bool canCompare() const { return m_standard.isEdited(); }
    void compare(bool held) { m_standard.compare(held); }
    void splitView(); // as the menu item says

    // Files: ControllerFiles.cpp
    void openImg();
    void openImgPanelDidEnd(int returnCode, const QStringList& files);
    void setFilePath(const QString& path) { m_document.setFilePath(path); } // empty for none
    void showInfoPanel(); // or hides it
    QString getFilePath() const { return m_document.filePath(); }
    void updateWinTitle();
    void showReadFailure(const QString& path) override;
    QStringList pictureNameFilters() override;

    // Opening: ControllerOpening.cpp
    /// Opens a picture file as the open panel does. The picture may come later: the file is read in the background, and
    /// only what has been read replaces picture, path and title. Nothing can be edited meanwhile, and a newer opening
    /// takes the place of this one.
    void openFile(const QString& path);
    /// The same as an undo step, if it is a picture; nothing while the program is busy.
    void openDroppedFile(const QString& path);
    void takeDroppedFile(const QString& path) override;
    /// Leaves everything as it was before the file was opened.
    void cancelOpening();
    bool isOpening() const { return m_opening != nullptr; }
    std::optional<CIImage> readImage(const QString& path) override;

    // Export: ControllerExport.cpp
    void initExportFormats();
    void saveImg();
    void saveImgAs() { runSavePanel(); }
    void runSavePanel();
    void savePanelDidEnd(int returnCode, const QString& path);
    /// To the current file, after a question. False when that can't be written to.
    bool saveExistFile();
    /// `index` is that of the format. Always true; failures are logged. The resolution isn't stored.
    bool simplySaveResolutionPath(int index, double resolution, const QString& path);
    void createPDFFileResolution(const QString& path, double resolution);
    CIImage getEffectedImage() { return m_modes.current().finishedImage(); }
    BaseEffect::LaterImage laterEffectedImage() { return m_modes.current().laterFinishedImage(); }
    /// The pixels of the finished picture. Null when there is no picture or the user stopped the rendering.
    CIBitmap createObjectImage();
    CIBitmap createObjectImage(double) { return createObjectImage(); } // the resolution means nothing to pixels
    /// The source picture. Images here have no rows to be upside down, so `flipped` changes nothing.
    CIImage getImage(bool) const { return m_document.picture(); }
    /// The pixels of the source picture, top row first; null without one.
    CIBitmap getCGImage();
    struct BitmapDescription {
        float width, height; // px
        int bitsPerPixel, bitsPerSample;
        std::size_t bytesPerRow;
        const std::byte* pixels;
        const CIBitmap* bitmap; // which the caller keeps
    };
    /// Leaves the description as it is for a null bitmap.
    static void getBitmapBmpBitmap(const CIBitmap& bitmap, BitmapDescription& description);

    // Favourites
    /// Of the current mode.
    void addFavourite();
    /// The one that is switched on in the current mode.
    void removeSelectedFavourite();
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
    void saveFavorites();
    void readFavorites();
    void saveFavoritesCI() { m_standard.favourites().save(); }
    void readFavoritesCI() { m_standard.favourites().read(); }
    void saveFavorites3D() { m_threeD.favourites().save(); }
    void readFavorites3D() { m_threeD.favourites().read(); }
    void saveFavoritesCustom() { m_custom.favourites().save(); }
    void readFavoritesCustom() { m_custom.favourites().read(); }

    // Buttons, menus and views: ControllerMenus.cpp
    void updateView() override { m_modes.current().updateView(); }
    void updateLayout() { m_standard.updateLayout(); }
    void updateMainBtnState();
    /// Enables, names and ticks the item; answers whether it is enabled.
    bool validateMenuItem(QAction& item);
    void validateMenuItems();
    QMenu* contextMenu() override { return contentMenuOutlet; }
    void displayHelp();
    void orderFrontAboutPanel();

    // Window and application: ControllerWindow.cpp
    bool windowShouldClose() const;
    void windowWillClose();
    void windowDidResize();
    void windowDidUpdate() { m_standard.rebuildPanelIfNeeded(); }
    void windowDidBecomeVisible();
    void keyUp(int key);
    void applicationDidFinishLaunching();
    void applicationDidBecomeActive();
    TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();
    void terminate();

    Document& document() { return m_document; }
    bool wasChanged() const { return m_document.wasChanged(); }

    // Unexpected ends: ControllerSession.cpp
    /// From now on, what is being edited is kept in the folder `home`, at most a minute old.
    void startJournal(const QString& home);
    /// Brings back a session that ended unexpectedly, if there is one and the user wants it. A picture that was opened
    /// meanwhile, and further sessions, get windows of their own.
    void offerRestore(const QString& home);
    SessionState sessionState();
    void restoreSession(const SessionState& state);

    // Other processes: ControllerSession.cpp
    /// The first one here, unless the user would lose changes and doesn't agree; the others in windows of their own.
    void openFilesFromOutside(const QStringList& paths);
    /// Starts a process for it; an empty path opens the window alone.
    static void openInNewWindow(const QString& path);

signals:
    /// Finished, failed or cancelled.
    void openingEnded();

private:
    struct Opening;
    void openInBackground(const QString& path, int reducedSide, std::function<void(const CIImage&)> take);
    int reducedSide() const;
    void showReduced(const CIImage& picture);
    void openingFinished(const PictureRead& read);
    std::shared_ptr<Opening> endOpening();
    QString openingPath() const;
    CIImage lastingPicture() const;
    bool isOpeningShown() const;
    QString openingText(const QString& path) const;
    void showOpening();
    void showOpeningProgress();
    void hideOpening(const Opening& opening);
    void setEditable(bool on);
    bool isFree(const QAction& item) const;
    void commitData(QSessionManager& session);
    bool asksToRestore(const SessionState& state);
    void markSessionClean();
    void connectInterface();
    void connectActions();
    void connectZoom();
    void restoreWindowFrame();
    CIImage turned(const QString& title, const std::function<CIImage()>& turn);
    void fitZoom();
    void showZoom();
    void showZoomOfMode();
    void updatePictureInfo();
    void showMessage(const QString& text);
    double chosenResolution() const;
    bool asksToReplace();
    void saveAs(const QString& path);
    bool writeInBackground(
        const QString& path, const std::function<Result<void>(const CIBitmap&, CIRenderControl&)>& write);
    void rememberRecentFile(const QString& path);
    void fillRecentMenu();
    void fillUndoHistoryMenu();
    void connectDocument();
    void showPicture();
    void showItem();
    void pathChanged();
    void showPanel(QWidget& panel);

    MainWindow& m_window;
    Ui::MainWindow& ui;
    Document m_document;
    std::unique_ptr<SessionJournal> m_journal;
    UndoManager& m_undoManager; // the document's

    // The interface, by the names under which it is known.
    QSlider* zoomSlider;
    QWidget* zoomSuperView;
    MyImageView* ciView;
    MyOGLView* openGLView;
    customEffImageView* customEffectsView;
    QAbstractButton* pasteBtn;
    QMenu* contentMenuOutlet;
    QPointer<QWidget> saveObjectOutlet; // the menus of the save panel
    QPointer<ResizePanel> m_resizePanel;
    QPointer<ImageInfo> infoPanel;

    FilterMaker m_filters;
    ParameterChanges m_changes;
    FilterCatalogue m_catalogue;
    FilterPanel m_panel;
    StandardMode m_standard;
    ThreeDMode m_threeD;
    CustomMode m_custom;
    ModeSwitch m_modes;

    int format_type = 0; // of the last save
    /// A finished save ends the program: the user wanted to quit.
    inline static bool quitAfterSave = false;

    bool m_saveWasStopped = false; // by the user, so nothing was written
    QString m_lastFolder; // of the open and save panels
    std::shared_ptr<Opening> m_opening; // null when nothing is being opened
    QTimer m_messageEnd;
};
