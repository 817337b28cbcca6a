#include "app/document/SessionJournal.h"

#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;

constexpr auto kLookInterval = 1s;

} // namespace

SessionJournal::SessionJournal(QString home, std::function<SessionState()> state, std::chrono::milliseconds interval)
    : m_home(std::move(home))
    , m_state(std::move(state))
    , m_interval(interval)
{
    m_clean = Fingerprint(m_state());
    connect(&m_timer, &QTimer::timeout, this, [this] { update(); });
    m_timer.start(kLookInterval);
}

SessionJournal::~SessionJournal() { finishWriting(); }

SessionJournal::Fingerprint::Fingerprint(const SessionState& state)
{
    try {
        values = KeyedArchive::archivedData(state.values);
    } catch (const ArchiveError& error) {
        qCWarning(lumivexLog, "%s", error.what());
    }
    for (const auto& [key, image] : state.pictures)
        pictures.emplace_back(key, image.node());
}

bool SessionJournal::Fingerprint::operator==(const Fingerprint& other) const
{
    return values == other.values
        && std::equal(pictures.begin(), pictures.end(), other.pictures.begin(), other.pictures.end(),
            [](const auto& a, const auto& b) {
                return a.first == b.first && !a.second.owner_before(b.second) && !b.second.owner_before(a.second);
            });
}

bool SessionJournal::isWriting() const
{
    return m_writing.valid() && m_writing.wait_for(0s) != std::future_status::ready;
}

void SessionJournal::finishWriting()
{
    if (m_writing.valid() && !m_writing.get())
        m_written = {}; // the next look tries again
}

void SessionJournal::adopt(std::shared_ptr<SessionFolder> folder)
{
    remove();
    m_folder = std::move(folder);
    m_written = Fingerprint(m_state());
    m_clean = {}; // it is worth keeping until it is saved
}

void SessionJournal::markClean()
{
    m_clean = Fingerprint(m_state());
    remove();
}

void SessionJournal::update(bool waits)
{
    if (waits && m_writing.valid())
        finishWriting();
    if (isWriting())
        return;
    finishWriting();
    if (!waits && m_sinceWriting.isValid() && std::chrono::milliseconds(m_sinceWriting.elapsed()) < m_interval)
        return;
    SessionState state = m_state();
    const Fingerprint print(state);
    if (print == m_clean)
        return remove();
    if (print == m_written || print.isEmpty())
        return;
    if (!m_folder)
        m_folder = SessionFolder::make(m_home);
    m_sinceWriting.start();
    if (!m_folder)
        return;
    m_written = print;
    m_stop = false;
    m_writing =
        std::async(std::launch::async, [this, state = std::move(state)] { return m_folder->write(state, m_stop); });
    if (waits)
        finishWriting();
}

void SessionJournal::remove()
{
    m_stop = true;
    finishWriting();
    if (m_folder)
        m_folder->remove();
    m_folder.reset();
    m_written = {};
}
