#include "app/catalogue/OutlineView.h"
#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects2d/GeneratedEffect.h"
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

ModeParts modeParts(
    const Ui::MainWindow& ui, GradientButton* button, OutlineView* list, DocPageControl* strip, QWidget* controls)
{
    return {*button, *list, *strip, *controls, *ui.filterNameField, *ui.filterNameLine, *ui.filterHintField};
}

} // namespace

Controller::Controller(MainWindow& window)
    : m_window(window)
    , ui(window.interface())
    , m_document(&window)
    , m_status(m_document, {window, *ui.pictureInfoField, *ui.openingBar, *ui.openingCancelBtn})
    , m_opening(m_document, [this] { return reducedSide(); })
    , m_turning(m_document)
    , m_resizing(m_document, &window)
    , m_cropping(m_document, window.centralWidget(), [this] { updateMainBtnState(); })
    , m_clipboard(m_document, [this] { return laterEffectedImage(); })
    , m_saving(m_document, &window, [this] { return laterEffectedImage(); },
          {[this] { m_session.markClean(); }, [this] { exportImg(); }, [this] { terminate(); }})
    , m_exporting(
          m_document, &window, [this] { return laterEffectedImage(); }, [this] { m_session.markClean(); })
    , m_session(m_document, m_opening, &window,
          {[this](SessionState& state, const CIImage& picture) { saveEdits(state, picture); },
              [this](const SessionState& state) { restoreEdits(state); }})
    , m_undoManager(m_document.undoManager())
    , ciView(ui.pictureScrollView->imageView())
    , openGLView(ui.openGLStage->openGLView())
    , customEffectsView(ui.customEffectsScrollView->imageView())
    , contentMenuOutlet(&window.commands().contextMenu())
    , m_changes(m_undoManager)
    , m_catalogue(*ui.listView, window.commands().action("actionThumbnails"), m_filters)
    , m_panel(*ui.placeCntrlView, *ui.controlScrollArea, *ciView, *this)
    , m_standard(modeParts(ui, ui.standardBtn, ui.listView, ui.m_pageController, ui.placeCntrlView),
          {m_document, m_filters, m_changes, m_catalogue, m_panel, *ciView})
    , m_threeD(modeParts(ui, ui.threeDBtn, ui.filter3DOutlineView, ui.m_page3DController, ui.place3DCntrlView),
          *ui.openGLStage, m_document)
    , m_custom(
          modeParts(ui, ui.customBtn, ui.filterCustomOutlineView, ui.m_pageCustomController, ui.placeCustomCntrlView),
          *customEffectsView, m_threeD, m_document)
    , m_modes(
          {&m_standard, &m_threeD, &m_custom}, {ui.filterTabView, ui.favoritesTabView, ui.mainTabView}, m_undoManager)
    , m_zooming(*ui.zoomSlider, *ui.zoomField, *ui.pictureScrollView,
          {{*ciView, {}}, {*customEffectsView, GeneratedEffect::kCanvasWithoutPicture}},
          {[this] { return m_modes.current().canvas(); },
              [this] {
                  const CIRect extent = m_document.picture().extent();
                  return QSizeF(extent.width, extent.height);
              }})
{
    ciView->setContext(m_document.context());
    ciView->setController(this);
    openGLView->setController(this);
    customEffectsView->setController(this);
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

bool Controller::isDarkMode() { return Appearance::shared().isDark(); }

void Controller::awakeFromNib()
{
    infoPanel = new ImageInfo(&m_window);
    m_resizePanel = new ResizePanel(&m_window, *this);
    for (const QDialog* panel : {static_cast<QDialog*>(infoPanel), static_cast<QDialog*>(m_resizePanel)})
        connect(panel, &QDialog::finished, this, &Controller::validateMenuItems); // their buttons are on no more
    setBackgroundImage(
        m_document.take(readPictureFile(pathForResource(QStringLiteral("main_img"), QStringLiteral("jpg")))));
    CIPlugIn::loadAllPlugIns();
    restoreWindowFrame();
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
    if (m_saving.isQuitting() && m_document.mayLoseWork())
        m_session.keepNow(); // the save was declined or cancelled, not the changes
    else
        m_session.end();
}
