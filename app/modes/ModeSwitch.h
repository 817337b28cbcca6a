// Which mode is on.
#pragma once

#include "app/modes/Mode.h"

#include <array>

class QAbstractButton;
class QStackedWidget;
class UndoManager;

/// One of the modes is on: that whose button is. What the modes have in common belongs to it.
class ModeSwitch : public QObject {
    Q_OBJECT

public:
    enum FilterMode { Standard = 0, ThreeD = 1, Custom = 2 };

    /// In the order of the pages in each of `pages`. The first one is on.
    ModeSwitch(std::array<Mode*, 3> modes, std::vector<QStackedWidget*> pages, UndoManager& undoManager);

    unsigned filerMode() const; // never stored: the buttons tell
    Mode& current() const { return *m_modes[filerMode()]; }
    const std::array<Mode*, 3>& modes() const { return m_modes; }

    /// The pressed button may be on already; the others are switched off here. The way back becomes the only undo step.
    void changeFilterMode(QAbstractButton* sender);
    /// By the tag of a menu item: 1, 2, 3. Nothing for another one.
    void selectMenuMode(int tag);
    /// Brings its pages to the front.
    void showCurrent();
    void clearAllAndUpdate();

    // --- all modes ---

    void saveFavourites();
    void readFavourites();
    void pictureChanged();
    void appearanceChanged();
    void windowResized();
    /// Which mode is on, and what is edited in each.
    void save(SessionState& state, const CIImage& picture) const;
    void restore(const SessionState& state);

signals:
    /// The current mode was brought to the front.
    void shown();
    /// The current item, or a favourite, is another one.
    void itemChanged();

private:
    const std::array<Mode*, 3> m_modes;
    const std::vector<QStackedWidget*> m_pages;
    UndoManager& m_undoManager;
};
