#include "app/document/Opening.h"

#include "app/document/Document.h"
#include "app/document/PictureOpening.h"
#include "app/document/RecentFiles.h"
#include "widgets/DropFileTypes.h"
#include "widgets/FilePanel.h"
#include "widgets/FileThumbnails.h"
#include "widgets/HeldInput.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QScopedPointer>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <optional>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 300ms; // most pictures are there before

/// To the panel's side bar, if it is there.
void addPlace(QFileDialog& panel, const QString& folder)
{
    QList<QUrl> places = panel.sidebarUrls();
    const QUrl place = QUrl::fromLocalFile(folder);
    if (QFileInfo(folder).isDir() && !places.contains(place))
        panel.setSidebarUrls(places << place);
}

} // namespace

struct Opening::Job {
    std::unique_ptr<PictureOpening, QScopedPointerDeleteLater> reader; // it may be its own signal that ends us
    Order order;
    QTimer patience;
    std::unique_ptr<HeldInput> input = std::make_unique<HeldInput>(); // until the user is told
    std::optional<CIImage> former = {}; // while a reduced picture stands in for the new one
};

Opening::Opening(Document& document, std::function<int()> reducedSide)
    : m_document(document)
    , m_reducedSide(std::move(reducedSide))
{
}

Opening::~Opening() = default;

// --- what is opened ---

QFileDialog* Opening::newPanel(QWidget& window, const QString& title)
{
    auto* panel = new QFileDialog(&window, title);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters(nameFilters());
    panel->setOption(QFileDialog::DontUseNativeDialog); // the desktop's has no place for our button
    FileThumbnails::installIn(*panel);
    dressFilePanel(*panel);
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    addPlace(*panel, pictures);
    panel->setDirectory(m_document.folder().isEmpty() && QFileInfo(pictures).isDir() ? pictures : m_document.folder());
    connect(panel, &QFileDialog::finished, this,
        [this, panel] { m_document.setFolder(panel->directory().absolutePath()); });
    return panel;
}

void Opening::runPanel(QWidget& window)
{
    QFileDialog* panel = newPanel(window, tr("Open Picture"));
    addNewWindowButton(*panel);
    connect(
        panel, &QFileDialog::finished, this, [this, panel](int code) { panelDidEnd(code, panel->selectedFiles()); });
    panel->open();
}

void Opening::runSecondPanel(QWidget& window, std::function<void(const QString&)> take)
{
    QFileDialog* panel = newPanel(window, tr("Open as Second Picture"));
    connect(panel, &QFileDialog::accepted, this, [panel, take] {
        // When the panel has gone, for reading may take long.
        QMetaObject::invokeMethod(
            panel->parentWidget(), [take, path = panel->selectedFiles().value(0)] { take(path); },
            Qt::QueuedConnection);
    });
    panel->open();
}

void Opening::addNewWindowButton(QFileDialog& panel)
{
    auto* buttons = panel.findChild<QDialogButtonBox*>();
    if (!buttons)
        return;
    QPushButton* button = buttons->addButton(tr("Open in New Window"), QDialogButtonBox::ActionRole);
    button->setToolTip(tr("Leaves this window's picture as it is"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, &panel] {
        const QString path = panel.selectedFiles().value(0);
        if (!QFileInfo(path).isFile())
            return;
        panel.reject();
        emit newWindowWanted(path);
    });
}

void Opening::panelDidEnd(int returnCode, const QStringList& files)
{
    if (returnCode == QDialog::Accepted && !files.isEmpty())
        open(files.first());
}

QStringList Opening::nameFilters() { return {tr("Pictures (%1)").arg(pictureFilePatterns()), tr("All files (*)")}; }

void Opening::open(const QString& path)
{
    start({.path = path, .actionName = tr("Open"), .reducedSide = m_reducedSide(), .mustBePicture = false});
}

void Opening::openFirst(const QString& path)
{
    open(path);
    if (m_job)
        m_job->order.isFirst = true;
}

void Opening::openDropped(const QString& path, bool mustBePicture)
{
    if (!path.isEmpty() && !QApplication::activeModalWidget())
        start({.path = path, .actionName = tr("Open"), .mustBePicture = mustBePicture});
}

void Opening::revert()
{
    if (!m_document.filePath().isEmpty())
        start({.path = m_document.filePath(), .actionName = tr("Revert to Opened File")});
}

void Opening::take(const Order& order, const CIImage& image)
{
    if (!image && order.mustBePicture) {
        emit notRead(order.path);
        return;
    }
    const bool wasUnsaved = m_document.isUnsaved();
    m_document.becomeFile(order.path, image, order.actionName);
    if (order.isFirst)
        m_document.undoManager().removeAllActions();
    if (image) {
        RecentFiles::remember(order.path);
        emit opened();
    }
    if (wasUnsaved)
        emit unsavedReplaced();
}

// --- how ---

void Opening::start(const Order& order)
{
    if (m_document.state() == Document::State::Working)
        return;
    cancel();
    m_job = std::make_unique<Job>();
    m_job->reader.reset(new PictureOpening(order.path, order.reducedSide, this));
    m_job->order = order;
    m_document.setState(Document::State::Opening);
    connect(m_job->reader.get(), &PictureOpening::reducedRead, this, &Opening::showStandIn);
    connect(m_job->reader.get(), &PictureOpening::finished, this, &Opening::end);
    m_job->patience.setSingleShot(true);
    m_job->patience.callOnTimeout(this, [this] {
        m_job->input.reset();
        emit shown();
    });
    m_job->patience.start(kPatience);
}

/// The whole picture takes the place before anybody can act on it.
void Opening::showStandIn(const CIImage& picture)
{
    emit standInComes();
    m_job->former = m_document.picture();
    m_document.setPicture(picture);
}

void Opening::end(const PictureRead& read)
{
    const std::unique_ptr<Job> job = takeJob();
    if (job->former)
        m_document.endStandIn(*job->former);
    take(job->order, m_document.take(read));
    emit finished();
    if (read.isIncomplete)
        emit m_document.message(
            tr("%1 is incomplete: the rest of the picture is missing.").arg(QFileInfo(job->order.path).fileName()));
}

void Opening::cancel()
{
    if (!m_job)
        return;
    const std::unique_ptr<Job> job = takeJob();
    if (job->former)
        m_document.setPicture(*job->former);
    emit cancelled();
}

/// From here on the document is idle.
std::unique_ptr<Opening::Job> Opening::takeJob()
{
    std::unique_ptr<Job> job = std::move(m_job);
    job->reader->disconnect(this); // what it has still to say comes too late
    job->reader->giveUp();
    job->patience.stop();
    job->input.reset();
    m_document.setState(Document::State::Idle);
    return job;
}

// --- what is seen of it ---

bool Opening::isShown() const { return m_job && !m_job->input; }

QString Opening::path() const { return m_job ? m_job->reader->path() : QString(); }

double Opening::progress() const { return m_job ? m_job->reader->progress() : 0; }

CIImage Opening::lastingPicture() const { return m_job && m_job->former ? *m_job->former : m_document.picture(); }
