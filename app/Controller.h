// The main window's controller: the center of the program.
#pragma once

#include "app/catalogue/DataSource.h"
#include "app/catalogue/OutlineModel.h"
#include "app/document/Document.h"
#include "app/modes/DefaultImages.h"
#include "app/modes/EffectList.h"
#include "app/modes/FavouritesStore.h"
#include "controls/panel/ParameterMaster.h"
#include "controls/picture/ImageViewMaster.h"
#include "effects2d/CustomViewMaster.h"
#include "effects2d/EffectMaster.h"
#include "effects3d/OGLViewMaster.h"
#include "files/ImageInfo.h"
#include "files/ResizePanel.h"
#include "platform/imageio/Result.h"
#include "widgets/FavouritesMaster.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CataloguePictures;
class CatalogueSearch;
class DocPageControl;
class FilterView;
class GradientButton;
class MainWindow;
class MyImageView;
class MyOGLView;
class OutlineView;
class QAbstractButton;
class QAction;
class QLabel;
class QSessionManager;
class QSlider;
class QStackedWidget;
class SessionJournal;
class ZoomedCanvas;
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
                   public ResizeMaster,
                   public FavouritesMaster {
    Q_OBJECT

public:
    /// What the user edits with. Never stored: the mode buttons tell.
    enum FilterMode { Standard = 0, ThreeD = 1, Custom = 2 };
    enum class TerminateReply { Now, Cancel };

    explicit Controller(MainWindow& window);
    ~Controller() override;

    static Controller* mainController();
    static bool isDarkMode();

    /// Start-up, once the window's interface is there.
    void awakeFromNib();

    // Modes: ControllerModes.cpp
    unsigned filerMode() const override;
    /// The pressed button may be on already; the others are switched off here.
    void changeFilterMode(QAbstractButton* sender);
    void selectMenuMode(const QAction* sender); // by the item's tag: 1, 2, 3
    void adjustViewsAndTabs();
    void escapeEffect();
    void clearAll();
    void clearAllAndUpdate();
    void onAppearanceChanged();

    // Lists: ControllerSelection.cpp
    /// `clicked` is the row that was clicked if it can't be selected (a group), else null.
    void outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked = nullptr);
    void outlineViewSelectionDidChange_CIF(OutlineView& outlineView, const OutlineItem* item);
    /// Shows only the filters that match; the current filter stays, seen or not.
    void searchFilters(const QString& text);
    /// Picks the first filter that is shown.
    void takeFirstMatch();

    // The picture and what the filter makes of it: ControllerFilterChain.cpp
    /// Makes it the picture (null for none) and fits the views to it.
    void setBackgroundImage(const CIImage& image) { m_document.setPicture(image); }
    CIImage backImage() override { return m_document.picture(); }
    CIImage filteredImage() const { return {}; } // results are never kept
    CIRect getBgImageExtent() const override { return m_document.picture().extent(); }
    std::shared_ptr<CIFilter> getCurrentFilter() override { return currentFilter; }
    void addFilterIndex(const QString& name, int index);
    void _setupAllImageInputsToNotNil(CIFilter& filter);
    void setAutomaticDefaults(CIFilter& filter);
    bool filterHasMissingImage(const CIFilter& filter) const;
    bool hasMissingImage() const;
    CIImage coreImageResultForRect(const CIRect& rect);
    CIImage coreImageResult(bool overBlack) override;
    void applyBtn();
    CIImage defaultTexture() { return texture.image(); }
    CIImage defaultShadingEMap() { return shadingemap.image(); }
    CIImage defaultAlphaEMap() { return alphaemap.image(); }
    CIImage defaultRamp() { return ramp.image(); }
    CIImage defaultMask() { return mask.image(); }
    QString defaultTexturePath() const { return texture.path(); }
    QString defaultShadingEMapPath() const { return shadingemap.path(); }
    QString defaultAlphaEMapPath() const { return alphaemap.path(); }
    QString defaultRampPath() const { return ramp.path(); }
    QString defaultMaskPath() const { return mask.path(); }

    // Parameters and undo: ControllerParameters.cpp
    /// For filters made by `addFilterIndex`; the undo step keeps the filter alive.
    void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key) override;
    void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key) override;
    void setActionNameForFilterKey(const CIFilter& filter, const std::string& key) override;
    void beginChange() override { m_undoManager.beginUndoGrouping(); }
    void endChange() override { m_undoManager.endUndoGrouping(); }
    CIValue standardValueForKey(const CIFilter& filter, const std::string& key) override;
    UndoManager* undoManager() override { return &m_undoManager; }
    void undo();
    void redo();

    // All steps in a menu: ControllerUndoHistory.cpp
    /// So many redos, or undos when negative; fewer when there are no more.
    void goInUndoHistory(int moves);

    // The panel: ControllerPanel.cpp
    /// Builds the rows of the current filter; nothing without one.
    void updateFilterControls(int tag);
    void clearControls();
    bool isControlsPresent() override;
    /// Makes rounded buttons square, in the view and all that is in it.
    void changeControlsStyle(QWidget* view);

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
    void zoomIn();
    void zoomOut();
    void zoomToFit();

    // 3D mode: Controller3D.cpp
    BaseEffect* getCurrent3DEffect() override { return current3DEffect.get(); }
    void outlineViewSelectionDidChange_3D(const OutlineItem* item);
    /// What the 3D view shows of the current effect, in the screen's pixels; null without one.
    CIImage result3D();

    // Custom mode: ControllerCustom.cpp
    BaseEffect* getCurrentCustomEffect() override { return currentCustomEffect.get(); }
    void outlineViewSelectionDidChange_Custom(const OutlineItem* item);
    /// The current effect's finished picture at full size; null without one.
    CIImage resultCustom();
    void addFavoritesCustom();
    /// Its undo asks `filterChanged3D` for the previous one, which in this mode finds nothing or clears the effect.
    void filterChangedCustom(onlyTextClosedButton* sender);

    // All inputs at once: ControllerInputs.cpp
    /// To what they hold when such a filter is newly chosen.
    void resetAllInputs();
    /// To values that sliders and picture have room for; pictures stay.
    void randomizeInputs();

    // Before and after: ControllerCompare.cpp
    /// Shows the picture without the filter, as long as `held`, in standard mode.
    void compare(bool held);
    /// Splits the view as the menu item says, in standard mode with a filter.
    void splitView();

    // Thumbnails in the list of filters: ControllerCatalogue.cpp
    void thumbnailsToggled();

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
    /// The finished picture of the current mode: what the user sees. The source picture when nothing is being edited.
    CIImage getEffectedImage();
    BaseEffect::LaterImage laterEffectedImage();
    /// Tells what another mode shows: upright, with pixels for points; null when it has no current effect.
    void setModeResult(FilterMode mode, std::function<CIImage()> result);
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

    // Favourites: ControllerFavourites.cpp
    /// Adds the current item of the current mode.
    void addFavourite();
    /// Removes the one that is switched on in the current mode.
    void removeSelectedFavourite();
    void addFavorites();
    void addFavorites3D();
    /// A favourite was pressed, or nothing is to be shown (null).
    void filterChanged(onlyTextClosedButton* sender);
    void filterChanged3D(onlyTextClosedButton* sender);
    void removeFavorites(onlyTextClosedButton* sender) override;
    void removeFavorites3D(onlyTextClosedButton* sender) override;
    void removeFavoritesCustom(onlyTextClosedButton* sender) override;
    void saveFavorites();
    void readFavorites();
    void saveFavoritesCI() { m_favorites.save(); }
    void readFavoritesCI() { m_favorites.read(); }
    void saveFavorites3D() { m_favorites3D.save(); }
    void readFavorites3D() { m_favorites3D.read(); }
    void saveFavoritesCustom() { m_favoritesCustom.save(); }
    void readFavoritesCustom() { m_favoritesCustom.read(); }

    // Buttons, menus and views: ControllerMenus.cpp
    void updateView() override;
    void updateLayout();
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
    void windowDidUpdate();
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
    void restoreFilter(const SessionState& state);
    void markSessionClean();
    void connectInterface();
    void connectActions();
    void connectLists();
    void connectZoom();
    void setDefaultImagePaths();
    void restoreWindowFrame();
    bool hasCurrentItem() const;
    std::shared_ptr<CIFilter> sharedFilter(const CIFilter& filter);
    void setSharedFilterValueForKey(
        const std::shared_ptr<CIFilter>& filter, const CIValue& value, const std::string& key);
    void setAllInputs(
        const QString& actionName, const std::function<std::optional<CIValue>(const CIInputAttributes&)>& valueFor);
    bool hasInputsToSet(bool randomly) const;
    CIImage turned(const QString& title, const std::function<CIImage()>& turn);
    void dropImagesOfPastFilters();
    void fitZoom();
    std::shared_ptr<CIFilter> newFilter(const std::string& name);
    void buildPanel(int tag);
    void rebuildPanel();
    void showFilterName(bool shown);
    std::vector<std::shared_ptr<BaseEffect>> effects3D();
    void connectThumbnails();
    void showThumbnails();
    void updateThumbnails();
    void connect3D();
    void setCurrent3DEffect(const std::shared_ptr<BaseEffect>& effect);
    void updateView3D();
    void show3DEffectName();
    void apply3D();
    std::vector<std::shared_ptr<BaseEffect>> effectsCustom();
    void connectCustom();
    void setCurrentCustomEffect(const std::shared_ptr<BaseEffect>& effect);
    void showCustomEffectName();
    bool applyCustom();
    ZoomedCanvas* zoomedView() const;
    void showZoom();
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
    void pathChanged();
    void showPanel(QWidget& panel);
    void switchOff(QPointer<onlyTextClosedButton>& button);
    void removeFavourite(
        FavouritesStore& store, QPointer<onlyTextClosedButton>& selected, onlyTextClosedButton* sender);
    QPointer<onlyTextClosedButton>& selectedFavourite();
    void chooseEffectFavourite(FavouritesStore& store, QPointer<onlyTextClosedButton>& selected, OutlineView& list,
        onlyTextClosedButton* sender);
    void setCurrentEffect(const std::shared_ptr<BaseEffect>& effect);
    void deselectLists();

    MainWindow& m_window;
    Ui::MainWindow& ui;
    Document m_document;
    std::unique_ptr<SessionJournal> m_journal;
    UndoManager& m_undoManager; // the document's
    DataSource m_dataSource;
    OutlineModel m_catalogue;

    // The interface, by the names under which it is known.
    OutlineView *listView, *filter3DOutlineView, *filterCustomOutlineView;
    GradientButton *standardBtn, *threeDBtn, *customBtn;
    QStackedWidget *filterTabView, *favoritesTabView, *mainTabView; // the page's index is the filter mode
    DocPageControl *m_pageController, *m_page3DController, *m_pageCustomController;
    QSlider* zoomSlider;
    QWidget* zoomSuperView;
    MyImageView* ciView;
    MyOGLView* openGLView;
    customEffImageView* customEffectsView;
    QWidget* placeCntrlView;
    QAbstractButton* pasteBtn;
    QMenu* contentMenuOutlet;
    QPointer<QWidget> saveObjectOutlet; // the menus of the save panel
    QPointer<ResizePanel> m_resizePanel;
    QPointer<ImageInfo> infoPanel;

    std::shared_ptr<CIFilter> currentFilter;
    std::shared_ptr<BaseEffect> current3DEffect; // always a copy of one of the prototypes
    std::shared_ptr<BaseEffect> eval3DEffect, object3DEffect;
    EffectList m_effects3D;
    OutlineModel m_list3D;
    DefaultImage texture, shadingemap, alphaemap, ramp, mask;
    std::shared_ptr<BaseEffect> currentCustomEffect; // always a copy of one of the prototypes
    std::shared_ptr<BaseEffect> m_simpleEffect, m_lineEffect, m_hilbertEffect, m_patchWorkEffect, m_flareEffect,
        m_plasmaEffect, m_pMorphingEffect, m_sketchEffect;
    EffectList m_effectsCustom;
    OutlineModel m_listCustom;
    FavouritesStore m_favorites, m_favorites3D, m_favoritesCustom;
    // The buttons that are shown as selected
    QPointer<onlyTextClosedButton> m_selectes_FavBtn, m_selectes_FavBtn3D, m_selectes_FavBtnCustom;
    bool needsUpdate = false;
    int format_type = 0; // of the last save
    /// A finished save ends the program: the user wanted to quit.
    inline static bool quitAfterSave = false;

    std::array<std::function<CIImage()>, 3> m_modeResults; // by mode
    bool m_saveWasStopped = false; // by the user, so nothing was written
    QString m_lastFolder; // of the open and save panels
    std::vector<std::weak_ptr<CIFilter>> m_madeFilters; // all that undo steps may still need
    std::shared_ptr<Opening> m_opening; // null when nothing is being opened
    QTimer m_messageEnd;
    CatalogueSearch* m_search;
    CataloguePictures* m_cataloguePictures = nullptr;
    QPointer<FilterView> m_panel;
    const OutlineItem* m_chosenRow = nullptr; // whose filter is the current one; it may be hidden by the search
    bool m_selectionIsOurs = false; // the selection changes on our own account: no choice of the user
};
