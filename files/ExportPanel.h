// The panel in which a picture is exported.
#pragma once

#include "files/ExportSettings.h"

#include <QDialog>

#include <memory>

class BeforeAfterView;
class ExportMeasuring;
class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QSpinBox;
struct ExportMeasured;

/// Asks for name, folder, format and the format's options, and shows what the file would be. It writes nothing: who
/// made it does so on `exportWanted`, and then closes it or says with `showFailure` what went wrong.
class ExportPanel : public QDialog {
    Q_OBJECT

public:
    /// What the panel starts with.
    struct Offer {
        QString path; // of the opened file; empty for none
        QString folder; // if there is no path
        std::shared_ptr<const PictureMetadata> metadata; // null for none
    };
    ExportPanel(QWidget* window, const CIBitmap& picture, const Offer& offer);
    ~ExportPanel() override;

    QString target() const; // the absolute path that is written
    ExportSettings settings() const;
    void showFailure(const QString& reason);

signals:
    /// After the question whether an existing file is to be replaced.
    void exportWanted(const QString& path, const ExportSettings& settings);

private:
    void build();
    void buildNames(class QBoxLayout& column);
    void buildOptions(QFormLayout& form);
    void buildSize(QFormLayout& form);
    void buildQuality(QFormLayout& form);
    QComboBox* addMenu(QFormLayout& form, const char* name, const QString& caption, const QString& hint);
    QCheckBox* addBox(QFormLayout& form, const char* name, const QString& text, const QString& hint);

    void offer(const Offer& offer);
    const FileFormat& format() const;
    void nameTyped();
    void formatChosen();
    void showOptionsOf(const FileFormat& format);
    void setSide(QSpinBox& changed, QSpinBox& other, int length, int otherLength);
    void changed();
    void showMeasured(const ExportMeasured& result);
    void chooseFolder();
    void exportPressed();

    CIBitmap m_picture;
    std::unique_ptr<ExportMeasuring> m_measuring;
    QFormLayout* m_form = nullptr;
    QLineEdit *m_name = nullptr, *m_folder = nullptr;
    QComboBox *m_formats = nullptr, *m_chroma = nullptr, *m_compression = nullptr, *m_depth = nullptr,
              *m_metadata = nullptr, *m_resolution = nullptr;
    QCheckBox *m_progressive = nullptr, *m_lossless = nullptr, *m_proportions = nullptr;
    QWidget* m_qualityRow = nullptr;
    QSlider* m_quality = nullptr;
    QSpinBox *m_width = nullptr, *m_height = nullptr;
    BeforeAfterView* m_view = nullptr;
    QLabel *m_size = nullptr, *m_message = nullptr;
    QAbstractButton* m_export = nullptr;
    bool m_isFilling = false; // the panel sets its own controls
};
