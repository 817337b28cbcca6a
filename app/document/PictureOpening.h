// Picture files on their way into the program.
#pragma once

#include "platform/coreimage/CIContext.h"
#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/PictureReader.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class Document;

/// What was read: an image, or why there is none.
struct PictureRead {
    CIImage image{};
    CIFormat format = CIFormat::RGBA8; // of its pixels
    std::shared_ptr<const PictureMetadata> metadata{}; // null when the source says nothing about itself
    bool isIncomplete = false; // the file ends before the picture does
    std::optional<Failure> failure{}; // none when there is an image, or none was asked for
};

/// Reads a file on other threads: first a reduced picture, where that is much quicker, then the whole one. Nobody waits
/// for those threads, so a slow disk or an endless drawing holds up neither the window nor the end of the program.
class PictureOpening : public QObject {
    Q_OBJECT
public:
    /// `reducedSide` is the longer side of the reduced picture in px, 0 for none.
    PictureOpening(const QString& path, int reducedSide, QObject* parent);
    ~PictureOpening() override;

    /// No signal comes any more, and the threads end as soon as they can.
    void giveUp();
    const QString& path() const { return m_path; }
    /// Of the whole picture, 0 to 1; 0 also as long as nobody can tell.
    double progress() const;

signals:
    /// Of the same extent as the whole picture will have.
    void reducedRead(const CIImage& picture);
    /// The last signal. Soon after there are no threads any more.
    void finished(const PictureRead& read);

private:
    struct Job;
    void readReduced(int side);
    void readWhole();

    QString m_path;
    std::shared_ptr<Job> m_job;
};

/// A picture file with what it says about itself. Blocks.
PictureRead readPictureFile(const QString& path, const ReadOptions& options = {});

/// The same of a file's bytes, which say nothing else.
PictureRead readPictureData(const QByteArray& data, const ReadOptions& options = {});

/// As work of the document, whose user is told the `title`. `take` gets the picture, null when there is none, unless
/// the user stops it; then `read` may go on for a while, and so owns all that it uses.
void readBesideWindow(Document& document, const QString& title, std::function<PictureRead(const ReadOptions&)> read,
    std::function<void(const CIImage&)> take);
