// Long work beside a living window.
#pragma once

#include "platform/coreimage/CIContext.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <thread>

class HeldInput;
class QDialog;
class QProgressBar;
class QWidget;

/// What the worker and the progress sheet share: first comes rendering, then perhaps writing.
class WorkControl {
public:
    /// `renderingShare`: how much of the bar is for rendering, 0 to 1.
    explicit WorkControl(double renderingShare)
        : m_renderingShare(renderingShare)
    {
    }
    CIRenderControl rendering, writing;
    bool canBeCancelled = true; // or else the user waits

    void cancel()
    {
        rendering.cancel();
        writing.cancel();
    }
    bool isCancelled() const { return rendering.isCancelled(); }
    double progress() const
    {
        return rendering.progress() * m_renderingShare + writing.progress() * (1 - m_renderingShare);
    }

private:
    double m_renderingShare;
};

struct WorkOptions {
    QString title; // of the progress sheet
    double renderingShare = 1; // how much of the bar is for rendering, 0 to 1
    bool canBeCancelled = true;
};

/// Work on another thread, beside a window that goes on drawing. Keys and clicks wait for it; after half a second a
/// sheet with a bar and a Cancel button appears instead. Main thread.
class BackgroundWork : public QObject {
public:
    using Work = std::function<void(WorkControl&)>;

    /// `work` sees to it that it ends soon after `isCancelled`, and may run out of memory. `then` is called once, never
    /// from here; the object may be gone by the time it returns. An object that goes away before that cancels the work,
    /// waits for it, and calls nothing.
    BackgroundWork(QWidget* window, const WorkOptions& options, Work work, std::function<void(bool isCancelled)> then);
    ~BackgroundWork() override;

private:
    void showSheet(QWidget* window, const QString& title);
    void end();

    WorkControl m_control;
    std::function<void(bool)> m_then;
    std::unique_ptr<HeldInput> m_input;
    std::unique_ptr<QDialog> m_sheet;
    QTimer m_patience;
    std::thread m_thread;
};

/// Shows how far something is, 0 to 1; at 0, when nobody can tell, the bar runs to and fro.
void showProgressOn(QProgressBar& bar, double progress);
