// What a file would be, worked out beside the window.
#pragma once

#include "files/ExportSettings.h"

#include <QTimer>

#include <optional>

struct ExportMeasured {
    qint64 bytes = 0; // exactly as many as the file will have
    CIBitmap before{}, after{}; // plain; `after` is what is read back, or `before` where nothing reads the format
    std::optional<Failure> failure{};
};

/// Encodes a picture as an export would, and reads it back. A later request replaces an earlier one, also when that is
/// under way. Main thread.
class ExportMeasuring : public QObject {
    Q_OBJECT

public:
    ExportMeasuring(CIBitmap picture, std::shared_ptr<const PictureMetadata> metadata);
    ~ExportMeasuring() override;

    void measure(const ExportSettings& settings);

signals:
    void measured(const ExportMeasured& result);

private:
    struct Job;
    void look();
    void start();

    CIBitmap m_picture;
    std::shared_ptr<const PictureMetadata> m_metadata;
    std::optional<ExportSettings> m_wanted;
    std::shared_ptr<Job> m_job;
    QTimer m_timer;
};
