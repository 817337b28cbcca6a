#include "widgets/BackgroundWork.h"

#include "widgets/HeldInput.h"

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 500ms;
constexpr auto kTick = 50ms;

class ProgressSheet : public QDialog {
public:
    ProgressSheet(QWidget* window, const QString& title, WorkControl& control)
        : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
        , m_control(control)
        , m_bar(new QProgressBar)
        , m_cancel(new QPushButton(QObject::tr("Cancel")))
    {
        setObjectName(QStringLiteral("ProgressSheet"));
        setWindowTitle(QStringLiteral("Lumivex"));
        setWindowModality(Qt::WindowModal);
        setMinimumWidth(400);
        setAccessibleName(title);
        m_bar->setTextVisible(false);
        m_bar->setAccessibleName(title);
        m_cancel->setVisible(control.canBeCancelled);
        m_cancel->setAutoDefault(false); // a late Return is for what was there before
        m_cancel->setToolTip(QObject::tr("Stops and leaves everything as it was"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(16, 16, 16, 16);
        layout->setSpacing(12);
        auto* label = new QLabel(title);
        label->setTextFormat(Qt::PlainText); // it may hold a file name
        layout->addWidget(label);
        layout->addWidget(m_bar);
        layout->addWidget(m_cancel, 0, Qt::AlignRight);
        connect(m_cancel, &QPushButton::clicked, this, &ProgressSheet::reject);
        connect(&m_tick, &QTimer::timeout, this, &ProgressSheet::showProgress);
        showProgress();
        m_tick.start(kTick);
    }

    /// The sheet stays until the work has really ended.
    void reject() override
    {
        if (!m_control.canBeCancelled)
            return;
        m_control.cancel();
        m_cancel->setEnabled(false);
    }

private:
    void showProgress() { showProgressOn(*m_bar, m_control.progress()); }

    WorkControl& m_control;
    QProgressBar* m_bar;
    QPushButton* m_cancel;
    QTimer m_tick;
};

} // namespace

void showProgressOn(QProgressBar& bar, double progress)
{
    constexpr int kSteps = 1000;
    bar.setRange(0, progress > 0 ? kSteps : 0);
    bar.setValue(int(progress * kSteps));
}

BackgroundWork::BackgroundWork(
    QWidget* window, const WorkOptions& options, Work work, std::function<void(bool isCancelled)> then)
    : m_control(options.renderingShare)
    , m_then(std::move(then))
    , m_input(std::make_unique<HeldInput>())
{
    m_control.canBeCancelled = options.canBeCancelled;
    m_patience.setSingleShot(true);
    m_patience.callOnTimeout(this, [this, window, title = options.title] { showSheet(window, title); });
    m_patience.start(kPatience);
    m_thread = std::thread([this, work = std::move(work)] {
        try {
            work(m_control);
        } catch (const std::bad_alloc&) {
            // Whoever wants the result sees that there is none.
        }
        QMetaObject::invokeMethod(
            this, [this] { end(); }, Qt::QueuedConnection);
    });
}

BackgroundWork::~BackgroundWork()
{
    m_control.cancel();
    if (m_thread.joinable())
        m_thread.join();
}

void BackgroundWork::showSheet(QWidget* window, const QString& title)
{
    m_input->forget();
    m_input.reset();
    m_sheet = std::make_unique<ProgressSheet>(window, title, m_control);
    m_sheet->show();
}

void BackgroundWork::end()
{
    m_thread.join();
    m_sheet.reset();
    m_patience.stop();
    m_input.reset();
    const std::function<void(bool)> then = std::move(m_then);
    then(m_control.isCancelled());
}
