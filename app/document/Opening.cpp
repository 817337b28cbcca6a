#include "app/document/Opening.h"

#include "app/document/Document.h"
#include "app/document/PictureOpening.h"
#include "app/document/RecentFiles.h"
#include "widgets/DropFileTypes.h"
#include "widgets/FilePanel.h"
#include "widgets/HeldInput.h"

#include <QApplication>
#include <QFileDialog>
#include <QScopedPointer>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 300ms; // most pictures are there before

} // namespace

struct Opening::Job {
    std::unique_ptr<PictureOpening, QScopedPointerDeleteLater> reader; // it may be its own signal that ends us
    Take take; // what is to be done with the picture
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

void Opening::runPanel(QWidget& window)
{
    auto* panel = new QFileDialog(&window, tr("Open Picture"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters(nameFilters());
    dressFilePanel(*panel);
    if (!m_document.folder().isEmpty())
        panel->setDirectory(m_document.folder());
    connect(panel, &QFileDialog::finished, this, [this, panel](int code) {
        m_document.setFolder(panel->directory().absolutePath());
        panelDidEnd(code, panel->selectedFiles());
    });
    panel->open();
}

void Opening::panelDidEnd(int returnCode, const QStringList& files)
{
    if (returnCode == QDialog::Accepted && !files.isEmpty())
        open(files.first());
}

QStringList Opening::nameFilters() { return {tr("Pictures (%1)").arg(pictureFilePatterns()), tr("All files (*)")}; }

void Opening::open(const QString& path)
{
    start(path, m_reducedSide(), [this, path](const CIImage& image) {
        m_document.setFilePath(path);
        m_document.setForeignPicture(image);
        if (image) {
            RecentFiles::remember(path);
            emit opened();
        }
    });
}

void Opening::openDropped(const QString& path, bool mustBePicture)
{
    if (path.isEmpty() || QApplication::activeModalWidget())
        return;
    start(path, 0, [this, path, mustBePicture](const CIImage& image) {
        if (!image && mustBePicture) {
            emit notRead(path);
            return;
        }
        m_document.setFilePath(path);
        m_document.replaceByForeignPicture(image);
        m_document.undoManager().setActionName(tr("Open"));
        if (mustBePicture)
            RecentFiles::remember(path);
    });
}

// --- how ---

void Opening::start(const QString& path, int reducedSide, Take take)
{
    if (m_document.state() == Document::State::Working)
        return;
    cancel();
    m_job = std::make_unique<Job>();
    m_job->reader.reset(new PictureOpening(path, reducedSide, this));
    m_job->take = std::move(take);
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
    job->take(m_document.take(read));
    emit finished();
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
