// A strip of buttons that is paged through.
#pragma once

#include "widgets/StripPaging.h"

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

#include <optional>

class QAbstractButton;
class QToolButton;

/// Buttons of one size side by side. What doesn't fit is reached with the buttons at both ends, with the wheel, or with
/// the arrow keys, which walk over the items (Home and End go to the first and the last). One of the items is a stop of
/// the Tab key. Owns its items.
class DocPageControl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
public:
    explicit DocPageControl(QWidget* parent = nullptr);

    void awakeFromNib();
    /// What stands where no item is.
    void setPlaceholderText(const QString& text);
    const QString& placeholderText() const { return m_placeholder; }

    void setPageCount(int count);
    int pageCount() const { return m_paging.pageCount; }
    void setCurrentPage(int page);
    int currentPage() const { return m_paging.current_page; }
    int maxShownPage() const { return m_paging.maxShownPage(); }
    void stepNext();
    void stepPrev();
    void stepNextTo(int index);
    /// Glides to the current page.
    void scrollToPage();
    void setHiddenStates();
    /// To be called after the strip got another width; it does so itself, too.
    void liveResizeDone();
    /// Steps towards the item if it is not, or hardly, visible.
    void adjustVisibility(int index);

    /// Puts the item right after the selected one, which is switched off and the new one on; at the end when none is
    /// selected.
    void addItem(QAbstractButton* item, QAbstractButton* selected);
    void removeItem(QAbstractButton* item);
    /// To another place among the others, within what there is. Dragging an item does that, too.
    void moveItem(QAbstractButton* item, int index);
    /// Goes to the nearest page that shows the whole item.
    void showItem(int index);
    void clear();
    void traceLog() const { }

    /// From left to right.
    const QList<QAbstractButton*>& items() const { return m_items; }
    int indexOf(const QAbstractButton* item) const { return m_items.indexOf(const_cast<QAbstractButton*>(item)); }
    double visibleOrigin() const { return m_origin; } // points
    double visibleWidth() const;
    bool isMoving() const { return m_animation || m_glide.state() == QAbstractAnimation::Running; }
    QToolButton* previousButton() const { return prevBtn; }
    QToolButton* nextButton() const { return nextBtn; }

signals:
    /// The user has moved an item.
    void itemMoved();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* addStepButton(const char* icon, const QString& name);
    bool hasMore() const { return !m_paging.hidesNext(m_origin, visibleWidth()); }
    void setOrigin(double x);
    void animateTo(double x);
    void AnimateScroller();
    void settle();
    void layOutItems();
    void setTabStop(QAbstractButton* item);
    void dragItem(QAbstractButton* item, const QMouseEvent& event);
    void placeItem(QAbstractButton* item, int index);

    StripPaging m_paging;
    QToolButton *prevBtn, *nextBtn;
    QWidget* mainPageScroller; // what is visible
    QWidget* m_document; // holds the items, moves
    QList<QAbstractButton*> m_items;
    double m_origin = 0; // of the visible part, on the document
    QTimer m_timer;
    std::optional<StripAnimation> m_animation;
    QVariantAnimation m_glide;
    QString m_placeholder;
    int m_wheelRest = 0;
    struct {
        QPoint pressed; // on the item
        QAbstractButton* item = nullptr; // that is being dragged
        int from = 0;
    } m_drag;
};
