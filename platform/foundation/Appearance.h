// Whether the program is drawn light or dark.
#pragma once

#include "platform/foundation/Look.h"

#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

/// Follows the desktop's color scheme, or keeps to what the user chose. Main thread only.
///
/// The desktop is asked through its settings portal and followed while the program runs. Where there is no portal,
/// or it has no preference, the palette with which the program was started decides.
class Appearance : public QObject {
    Q_OBJECT

public:
    enum class Choice { System, Light, Dark };

    /// Made with the first call, which must come after the QApplication's. The first answer comes from the last
    /// run's memory, so that a dark desktop sees no light flash; the portal's follows when it arrives.
    static Appearance& shared();

    bool isDark() const { return m_dark; }
    const Look& look() const { return m_dark ? Look::dark() : Look::light(); }

    Choice choice() const { return m_choice; }
    /// Remembered in the user defaults.
    void setChoice(Choice choice);

    /// Gives the whole program its style, palette and style sheet, now and after every change.
    void dressApplication();

signals:
    void changed();

public slots:
    /// What the portal tells: namespace, key and value of a setting.
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    Appearance();

    void askPortal();
    void portalAnswered(QDBusPendingCallWatcher* call);
    void setSystemScheme(unsigned scheme);
    void update();

    Choice m_choice = Choice::System;
    unsigned m_systemScheme = 0; // the portal's numbers: 0 no preference, 1 dark, 2 light
    bool m_paletteIsDark = false;
    bool m_dark = false;
    bool m_dressed = false;
};
