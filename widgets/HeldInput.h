// Keys and clicks that wait.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

/// As long as it lives, nobody gets the user's keys and clicks; afterwards they go where they would have gone. Main
/// thread.
class HeldInput : public QObject {
public:
    HeldInput();
    ~HeldInput() override;

    /// What has been held so far goes nowhere.
    void forget() { m_held.clear(); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };
    std::vector<Held> m_held;
};
