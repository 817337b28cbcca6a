#include "app/Controller.h"

#include "app/catalogue/LooksPopup.h"
#include "app/catalogue/OutlineView.h"
#include "app/commands/FilledMenus.h"
#include "app/document/PictureOpening.h"
#include "app/window/PreferencesPanel.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects2d/GeneratedEffect.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/chain/Baking.h"
#include "platform/coreimage/CIPlugIn.h"
#include "platform/coreimage/Fitting.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/foundation/ResourcePaths.h"
#include "platform/foundation/TintedIcon.h"
#include "ui_MainWindow.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"

#include <QApplication>
#include <QUrl>

#include <algorithm>

namespace {

Controller* theController = nullptr;

ModeParts modeParts(
    const Ui::MainWindow& ui, GradientButton* button, OutlineView* list, DocPageControl* strip, QWidget* controls)
{
    return {*button, *list, *strip, *controls, *ui.filterNameField, *ui.filterNameLine, *ui.filterHintField};
}

} // namespace

// --- start and end ---

Controller::Controller(MainWindow& window)
    : m_window(window)
    , ui(window.interface())
    , m_document(&window)
    , m_status(m_document, {window, *ui.pictureInfoField, *ui.openingBar, *ui.openingCancelBtn})
    , m_opening(m_document, [this] { return m_openingView.reducedSide(); })
    , m_turning(m_document)
    , m_resizing(m_document, &window)
    , m_cropping(m_document, window.centralWidget(), [this] { updateMainBtnState(); })
    , m_clipboard(m_document, [this] { return laterEffectedImage(); })
    , m_saving(m_document, &window, [this] { return laterEffectedImage(); },
          {[this] { m_session.markClean(), pathChanged(); }, [this] { exportImg(); }, [this] { terminate(); }})
    , m_exporting(
          m_document, &window, [this] { return laterEffectedImage(); }, [this] { m_session.markClean(); })
    , m_printing(m_document, &window, [this] { return laterEffectedImage(); })
    , m_session(m_document, m_opening, &window,
          {[this](SessionState& state, const CIImage& picture) { m_modes.save(state, picture); },
              [this](const SessionState& state) { m_modes.restore(state); }})
    , m_undoManager(m_document.undoManager())
    , ciView(ui.pictureScrollView->imageView())
    , openGLView(ui.openGLStage->openGLView())
    , customEffectsView(ui.customEffectsScrollView->imageView())
    , m_draggingOut(m_document, ciView, [this] { return laterEffectedImage(); })
    , contentMenuOutlet(&window.commands().contextMenu())
    , m_changes(m_undoManager)
    , m_catalogue(*ui.listView, *ui.filterGrid,
          {window.commands().action("actionThumbnails"), window.commands().action("actionFilterColumns")}, m_filters)
    , m_panel(*ui.placeCntrlView, *ui.controlScrollArea, *ciView, *this)
    , m_options({window.commands().action("actionStartFitted"), *ui.keepSizeBox, *ui.fitNotice, *ui.fitNoticeField,
                    *ui.fitNoticeBtn, *ui.fitNoticeOtherBtn},
          m_filters)
    , m_standard(modeParts(ui, ui.standardBtn, ui.listView, ui.m_pageController, ui.placeCntrlView),
          {m_document, m_filters, m_changes, m_catalogue, m_panel, m_options, *ciView})
    , m_threeD(modeParts(ui, ui.threeDBtn, ui.filter3DOutlineView, ui.m_page3DController, ui.place3DCntrlView),
          *ui.openGLStage, m_document)
    , m_custom(
          modeParts(ui, ui.customBtn, ui.filterCustomOutlineView, ui.m_pageCustomController, ui.placeCustomCntrlView),
          *customEffectsView, m_threeD, m_document)
    , m_modes(
          {&m_standard, &m_threeD, &m_custom}, {ui.filterTabView, ui.favoritesTabView, ui.mainTabView}, m_undoManager)
    , m_zooming(*ui.zoomSlider, *ui.zoomField, *ui.mainTabView,
          {{*ciView, {}}, {*customEffectsView, GeneratedEffect::kCanvasWithoutPicture}},
          {[this] { return m_modes.current().canvas(); },
              [this] { return QSizeF(getBgImageExtent().width, getBgImageExtent().height); }})
    , m_comparing({window, *ui.compareBtn, window.commands().action("actionSplitView"),
                      window.commands().action("actionCompareOpened"), *ciView},
          m_document, {[this] { return m_standard.isEdited(); }, [this] { return m_standard.isOn(); }})
    , m_openingView(window, m_opening, m_status, m_zooming)
    , m_closing({window, m_document, m_opening, m_saving, m_session, m_status}, [this] { saveFavorites(); })
{
    ciView->setContext(m_document.context());
    ciView->setController(this);
    openGLView->setController(this);
    customEffectsView->setController(this);
    connectDocument();
    connectInterface();
    window.setController(this);
}

Controller::~Controller()
{
    m_window.setController(nullptr);
    ciView->setController(nullptr);
    openGLView->setController(nullptr);
    customEffectsView->setController(nullptr);
    if (theController == this)
        theController = nullptr;
}

Controller* Controller::mainController() { return theController; }

void Controller::connectDocument()
{
    connect(&m_document, &Document::pictureChanged, this, [this] {
        showPicture();
        if (!isOpening())
            updateWinTitle();
    });
    connect(&m_document, &Document::pathChanged, this, &Controller::pathChanged);
    connect(&m_document, &Document::changedMarkChanged, this, &Controller::updateWinTitle);
    connect(&m_document, &Document::wentInHistory, this, [this] {
        updateView();
        updateLayout();
    });
    connect(&m_opening, &Opening::opened, this, [this] { m_session.markClean(); });
    connect(&m_opening, &Opening::notRead, this, &Controller::showReadFailure);
    connect(&m_opening, &Opening::newWindowWanted, this, &Session::openInNewWindow);
    connect(&m_opening, &Opening::unsavedReplaced, this, [this] {
        m_status.offer(
            m_document.picture() ? tr("Changes that were not saved have been replaced.") : m_document.readFailure(),
            {&m_window.commands().action("actionUndo")});
    });
    connect(&m_undoManager, &UndoManager::stateChanged, this, &Controller::validateMenuItems);
    connect(&m_undoManager, &UndoManager::stateChanged, &m_status, &StatusRow::endOffer); // it was about another step
}

void Controller::connectInterface()
{
    connect(&m_openingView, &OpeningView::editableChanged, this, &Controller::updateMainBtnState);
    connect(&m_zooming, &Zooming::zoomed, this, &Controller::updateView);
    connect(&m_modes, &ModeSwitch::shown, this, [this] { m_zooming.showIn(*ui.zoomSuperView); });
    connect(&m_modes, &ModeSwitch::shown, this, &Controller::updateMainBtnState);
    connect(&m_modes, &ModeSwitch::shown, &m_standard, &StandardMode::updateView);
    connect(&m_standard, &StandardMode::resultShown, &m_status, &StatusRow::setResult);
    connect(&m_window.commands().action("actionStartFitted"), &QAction::toggled, &m_catalogue,
        &FilterCatalogue::renewPictures);
    connect(&m_modes, &ModeSwitch::itemChanged, this, &Controller::showItem);
    connect(ui.searchField, &QLineEdit::textChanged, &m_catalogue, &FilterCatalogue::searchFilters);
    connect(ui.searchField, &QLineEdit::returnPressed, &m_catalogue, &FilterCatalogue::takeFirstMatch);
    m_catalogue.addEffects(m_threeD.prototypes(), tintedIcon(QStringLiteral("mode-3d")));
    m_catalogue.addEffects(m_custom.prototypes(), tintedIcon(QStringLiteral("mode-custom")));
    connect(&m_catalogue, &FilterCatalogue::effectAsked, this, &Controller::chooseEffect);
    connect(&m_catalogue, &FilterCatalogue::lookAsked, &m_standard, &StandardMode::chooseLook);
    connect(ui.openingCancelBtn, &QAbstractButton::clicked, this, &Controller::cancelOpening);
    connect(ciView, &MyImageView::pictureDragged, this, [this] { m_draggingOut.start(); });
    // What is hidden or disabled while keys go there, such as the rows of a filter that is applied, leaves them to the
    // picture.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* former, const QWidget* now) {
        if (former && now && m_window.isAncestorOf(former) && !(former->isVisible() && former->isEnabled()))
            for (QWidget* view : std::initializer_list<QWidget*>{ciView, openGLView, customEffectsView})
                if (view->isVisible())
                    view->setFocus(Qt::OtherFocusReason);
    });
    connect(&Pasteboard::generalPasteboard(), &Pasteboard::changed, this, &Controller::updateMainBtnState);
}

void Controller::showLooks()
{
    if (!m_looks) {
        m_looks = new LooksPopup(&m_window);
        connect(m_looks, &LooksPopup::chosen, &m_standard, &StandardMode::chooseLook);
    }
    m_looks->popUp(*ui.looksBtn, m_document.picture());
}

/// In its mode, which is on from now on.
void Controller::chooseEffect(const QString& className)
{
    for (EffectMode* mode : std::initializer_list<EffectMode*>{&m_threeD, &m_custom})
        if (mode->hasClass(className)) {
            m_modes.changeFilterMode(&mode->button());
            mode->chooseClass(className);
        }
}

void Controller::awakeFromNib()
{
    infoPanel = new ImageInfo(&m_window);
    m_resizePanel = new ResizePanel(&m_window, *this);
    for (const QDialog* panel : {static_cast<QDialog*>(infoPanel), static_cast<QDialog*>(m_resizePanel)})
        connect(panel, &QDialog::finished, this, &Controller::validateMenuItems); // their buttons are on no more
    setBackgroundImage(
        m_document.take(readPictureFile(pathForResource(QStringLiteral("main_img"), QStringLiteral("jpg")))));
    CIPlugIn::loadAllPlugIns();
    m_window.restoreFrame();
    m_window.makeRoomForColumns();
    initExportFormats();
    readFavorites();
    theController = this;
    EffectMaster::setMainController(this);
    setFilePath({});
    m_document.setSaved();
    adjustViewsAndTabs();
    clearControls();
    updateMainBtnState();
    connect(&Appearance::shared(), &Appearance::changed, this, &Controller::onAppearanceChanged);
}

void Controller::applicationDidFinishLaunching()
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            applicationDidBecomeActive();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, &m_closing, &Closing::commitData);
}

// --- what is shown ---

void Controller::showPicture()
{
    m_modes.pictureChanged();
    m_zooming.fit(); // the views lay themselves out for what the effects make of it
    m_status.update();
    const CIRect extent = getBgImageExtent();
    ResizePanel::setWHH(float(extent.width), float(extent.height));
    updateView();
    validateMenuItems();
}

void Controller::pathChanged()
{
    const QString& path = m_document.filePath();
    ImageInfo::setMyURL(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    updateWinTitle();
}

/// The current item, or a favourite, is another one.
void Controller::showItem()
{
    updateView();
    updateMainBtnState();
}

void Controller::updateMainBtnState()
{
    ui.fitRow->setVisible(hasInputsToSet(false));
    m_comparing.update(!m_opening.isShown());
    updateWinTitle();
    validateMenuItems();
}

void Controller::outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked)
{
    m_modes.current().choose(clicked ? clicked : outlineView.selectedItem());
    showItem();
}

void Controller::showPreferences()
{
    const Commands& commands = m_window.commands();
    auto* panel = new PreferencesPanel(m_window.centralWidget(),
        {&commands.action("actionStartFitted"), &commands.action("actionThumbnails"),
            &commands.action("actionFilterColumns"), &commands.action("actionHistogram")});
    connect(panel, &Overlay::closed, this, &Controller::updateMainBtnState);
    panel->open();
    updateMainBtnState();
}

void Controller::fillRecentMenu(QMenu& menu)
{
    FilledMenus::fillRecent(menu, [this](const QString& path) { openFile(path); });
}

void Controller::fillUndoHistoryMenu(QMenu& menu)
{
    FilledMenus::fillUndoHistory(menu, m_undoManager, [this](int moves) { m_document.goInHistory(moves); });
}

// --- what is done ---

void Controller::keyUp(int key)
{
    if (key == Qt::Key_Escape)
        escapeEffect();
}

void Controller::escapeEffect()
{
    if (isOpening())
        cancelOpening();
    else
        clearAllAndUpdate();
}

void Controller::applyBtn()
{
    if (m_document.isIdle())
        m_modes.current().apply([this] { clearAllAndUpdate(); });
}

void Controller::columnsToggled()
{
    m_catalogue.columnsToggled();
    m_window.makeRoomForColumns();
}

double Controller::sliderGrowthForKey(const CIFilter& filter, const std::string& key)
{
    const CIInputAttributes* input = filter.attributesForKey(key);
    return input ? std::max(1.0, ci::fittedGrowth(filter, *input, getBgImageExtent())) : 1;
}

void Controller::pickPlace(std::function<void(std::optional<CIPoint>)> take) { ciView->pickPlace(std::move(take)); }

void Controller::addFavourite()
{
    m_modes.current().addFavourite();
    validateMenuItems();
}

void Controller::removeSelectedFavourite()
{
    m_modes.current().removeFavourite(m_modes.current().selectedFavourite());
    validateMenuItems();
}

void Controller::compareOpened()
{
    m_comparing.compareOpened();
    updateMainBtnState();
}

void Controller::setAutomaticDefaults(CIFilter& filter) { m_filters.setAutomaticDefaults(filter, ciView->bounds()); }

// --- pictures ---

CIImage Controller::coreImageResult(bool overBlack)
{
    const CIImage result = m_standard.coreImageResult();
    return overBlack && !hasMissingImage() ? ::overBlack(result) : result;
}

void Controller::readImage(const QString& path, std::function<void(const CIImage&)> take)
{
    readBesideWindow(
        m_document, m_openingView.text(path),
        [path](const ReadOptions& options) { return path.isEmpty() ? PictureRead() : readPictureFile(path, options); },
        std::move(take));
}

void Controller::takeSecondPicture(const QString& path)
{
    if (path.isEmpty() || !backImage())
        return;
    readImage(path, [this, path](const CIImage& second) {
        if (!second)
            return showReadFailure(path);
        if (!m_standard.isOn())
            m_modes.changeFilterMode(&m_standard.button());
        m_standard.takeSecondPicture(second);
        updateMainBtnState();
    });
}

CIBitmap Controller::createObjectImage()
{
    const LaterPicture picture = laterEffectedImage();
    return picture
        ? renderedBitmap(*m_document.context(), picture(nullptr), storedLike(m_document.picture(), m_document.format()))
        : CIBitmap();
}

CIBitmap Controller::getCGImage() { return renderedBitmap(*m_document.context(), getImage(true), CIFormat::RGBA8); }
