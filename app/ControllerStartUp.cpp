#include "app/CatalogueSearch.h"
#include "app/Controller.h"
#include "app/MainWindow.h"
#include "app/OutlineView.h"
#include "controls/MyImageView.h"
#include "controls/PictureScrollView.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/coreimage/CIPlugIn.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/ResourcePaths.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

namespace {

Controller* theController = nullptr;

const QString kWindowFrameName = QStringLiteral("Velmora");

} // namespace

Controller::Controller(MainWindow& window)
    : m_window(window)
    , ui(window.interface())
    , m_catalogue(m_dataSource, {DataSource::kTitleColumn, DataSource::kMarkerColumn})
    , m_context(std::make_shared<CIContext>())
    , listView(ui.listView)
    , filter3DOutlineView(ui.filter3DOutlineView)
    , standardBtn(ui.standardBtn)
    , threeDBtn(ui.threeDBtn)
    , customBtn(ui.customBtn)
    , filterTabView(ui.filterTabView)
    , mainTabView(ui.mainTabView)
    , zoomSlider(ui.zoomSlider)
    , zoomSuperView(ui.zoomSuperView)
    , ciView(ui.pictureScrollView->imageView())
    , openGLView(ui.openGLStage->openGLView())
    , placeCntrlView(ui.placeCntrlView)
    , pasteBtn(ui.pasteBtn)
    , contentMenuOutlet(window.contextMenu())
    , m_effects3D(effects3D())
    , m_list3D(m_effects3D, {EffectList::kTitleColumn, EffectList::kMarkerColumn})
    , m_search(new CatalogueSearch(this))
{
    standardBtn->setChecked(true);
    m_messageEnd.setSingleShot(true);
    connect(&m_messageEnd, &QTimer::timeout, this, &Controller::updatePictureInfo);
    ciView->setContext(m_context);
    ciView->setController(this);
    connectInterface();
    window.setController(this);
}

Controller::~Controller()
{
    m_window.setController(nullptr);
    ciView->setController(nullptr);
    openGLView->setController(nullptr);
    quitAfterSave = false;
    if (theController == this)
        theController = nullptr;
}

Controller* Controller::mainController() { return theController; }

bool Controller::isDarkMode() { return Appearance::shared().isDark(); }

void Controller::awakeFromNib()
{
    m_resizePanel = new ResizePanel(&m_window, *this);
    setBackgroundImage(readImage(pathForResource(QStringLiteral("main_img"), QStringLiteral("jpg"))));
    setDefaultImagePaths();
    CIPlugIn::loadAllPlugIns();
    restoreWindowFrame();
    initExportFormats();
    listView->deselectAll();
    filter3DOutlineView->deselectAll();
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
    m_window.restoreGeometry(UserDefaults::standardUserDefaults().objectForKey(kWindowFrameName).toByteArray());
}

void Controller::applicationWillTerminate()
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    defaults.setObjectForKey(m_window.saveGeometry(), kWindowFrameName);
    defaults.synchronize();
}
