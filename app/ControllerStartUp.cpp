#include "app/catalogue/CatalogueSearch.h"
#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/document/SessionJournal.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/coreimage/CIPlugIn.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/ResourcePaths.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"

namespace {

Controller* theController = nullptr;

const QString kWindowFrameName = QStringLiteral("Velmora");

} // namespace

Controller::Controller(MainWindow& window)
    : m_window(window)
    , ui(window.interface())
    , m_document(&window)
    , m_undoManager(m_document.undoManager())
    , m_catalogue(m_dataSource, {DataSource::kTitleColumn, DataSource::kMarkerColumn})
    , listView(ui.listView)
    , filter3DOutlineView(ui.filter3DOutlineView)
    , filterCustomOutlineView(ui.filterCustomOutlineView)
    , standardBtn(ui.standardBtn)
    , threeDBtn(ui.threeDBtn)
    , customBtn(ui.customBtn)
    , filterTabView(ui.filterTabView)
    , favoritesTabView(ui.favoritesTabView)
    , mainTabView(ui.mainTabView)
    , m_pageController(ui.m_pageController)
    , m_page3DController(ui.m_page3DController)
    , m_pageCustomController(ui.m_pageCustomController)
    , zoomSlider(ui.zoomSlider)
    , zoomSuperView(ui.zoomSuperView)
    , ciView(ui.pictureScrollView->imageView())
    , openGLView(ui.openGLStage->openGLView())
    , customEffectsView(ui.customEffectsScrollView->imageView())
    , placeCntrlView(ui.placeCntrlView)
    , pasteBtn(ui.pasteBtn)
    , contentMenuOutlet(window.contextMenu())
    , m_effects3D(effects3D(), EffectList::Marks::All)
    , m_list3D(m_effects3D, {EffectList::kTitleColumn, EffectList::kMarkerColumn})
    , m_effectsCustom(effectsCustom(), EffectList::Marks::Mousing)
    , m_listCustom(m_effectsCustom, {EffectList::kTitleColumn, EffectList::kMarkerColumn})
    , m_favorites(
          {kFilterFavouritesKey, nullptr, [this](auto* button) { filterChanged(button); }}, *m_pageController, *this)
    , m_favorites3D({QStringLiteral("3DEffectsFavorites"), &m_effects3D.prototypes(),
                        [this](auto* button) { filterChanged3D(button); },
                        &QWidget::y}, // all of them lie at the top: a step towards the first
          *m_page3DController, *this)
    , m_favoritesCustom({QStringLiteral("CustomEffectsFavorites"), &m_effectsCustom.prototypes(),
                            [this](auto* button) { filterChangedCustom(button); }},
          *m_pageCustomController, *this)
    , m_search(new CatalogueSearch(this))
{
    standardBtn->setState(true);
    m_messageEnd.setSingleShot(true);
    connect(&m_messageEnd, &QTimer::timeout, this, &Controller::updatePictureInfo);
    ciView->setContext(m_document.context());
    ciView->setController(this);
    connectInterface();
    window.setController(this);
}

Controller::~Controller()
{
    m_window.setController(nullptr);
    ciView->setController(nullptr);
    openGLView->setController(nullptr);
    customEffectsView->setController(nullptr);
    quitAfterSave = false;
    if (theController == this)
        theController = nullptr;
}

Controller* Controller::mainController() { return theController; }

bool Controller::isDarkMode() { return Appearance::shared().isDark(); }

void Controller::awakeFromNib()
{
    infoPanel = new ImageInfo(&m_window);
    m_resizePanel = new ResizePanel(&m_window, *this);
    for (const QDialog* panel : {static_cast<QDialog*>(infoPanel), static_cast<QDialog*>(m_resizePanel)})
        connect(panel, &QDialog::finished, this, &Controller::validateMenuItems); // their buttons are on no more
    setBackgroundImage(
        m_document.take(readPictureFile(pathForResource(QStringLiteral("main_img"), QStringLiteral("jpg")))));
    setDefaultImagePaths();
    CIPlugIn::loadAllPlugIns();
    restoreWindowFrame();
    initExportFormats();
    readFavorites();
    listView->deselectAll();
    filter3DOutlineView->deselectAll();
    filterCustomOutlineView->deselectAll();
    theController = this;
    EffectMaster::setMainController(this);
    setFilePath({});
    adjustViewsAndTabs();
    clearControls();
    updateMainBtnState();
    connect(&Appearance::shared(), &Appearance::changed, this, &Controller::onAppearanceChanged);
}

void Controller::setDefaultImagePaths()
{
    const auto path = [](const char* name) { return pathForResource(QLatin1String(name), QStringLiteral("tiff")); };
    texture.setPath(path("smoothtexture"));
    shadingemap.setPath(path("lightball"));
    alphaemap.setPath(path("restrictedshine"));
    ramp.setPath(path("colormap"));
    mask.setPath(path("mask"));
}

void Controller::restoreWindowFrame()
{
    const QByteArray frame = UserDefaults::standardUserDefaults().objectForKey(kWindowFrameName).toByteArray();
    if (!m_window.restoreGeometry(frame))
        m_window.resize(m_window.size().boundedTo(m_window.screen()->availableSize())); // small screens, large fonts
}

void Controller::applicationWillTerminate()
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    defaults.setObjectForKey(m_window.saveGeometry(), kWindowFrameName);
    defaults.synchronize();
    if (m_journal)
        m_journal->remove();
}
