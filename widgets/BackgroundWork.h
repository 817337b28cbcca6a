// Long work beside a living window.
#pragma once

#include "platform/coreimage/CIContext.h"

#include <QString>

#include <functional>

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

/// Runs `work` on another thread and returns when it is done; the window goes on drawing meanwhile. After half a second
/// a sheet with a bar and a Cancel button appears; until then keys and clicks wait. `work` sees to it that it ends
/// soon after `isCancelled`. False when the user cancelled, or when there was no memory for the work.
/// Called on the main thread, which must not end the program meanwhile: ask `isWorkRunning`.
bool workInBackground(QWidget* window, const QString& title, WorkControl& control, const std::function<void()>& work);

bool isWorkRunning();

/// Shows how far something is, 0 to 1; at 0, when nobody can tell, the bar runs to and fro.
void showProgressOn(QProgressBar& bar, double progress);
