// What the user wants of all filters.
#pragma once

#include "app/document/IdleThread.h"
#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"

#include <QObject>

#include <functional>
#include <memory>

class FilterMaker;
class QAbstractButton;
class QAction;
class QCheckBox;
class QLabel;
class QWidget;

/// Remembers whether filters start with values that fit the picture, and whether results keep its size; and says in the
/// panel when the values that a filter starts with show nothing on so large a picture.
class FilterOptions : public QObject {
    Q_OBJECT

public:
    struct Parts {
        QAction& startFitted;
        QCheckBox& keepSize; // shown for filters whose result is larger than the picture
        QWidget& notice;
        QLabel& text;
        QAbstractButton &fit, &other;
    };
    FilterOptions(Parts parts, FilterMaker& filters);

    bool keepsSize() const;

    /// The user has chosen the filter. The first time on a large picture he is asked how filters are to start; else the
    /// panel tells, as soon as it is known, when its values show nothing where others would. The check runs on another
    /// thread while nothing else does.
    void filterChosen(const std::shared_ptr<CIFilter>& filter, const CIImage& picture, CIPoint viewSize);
    /// There is a filter, with other values maybe. What was said of its first ones is taken back.
    void valuesChanged(bool isLargerThanPicture);
    void filterGone();

signals:
    /// The filter's values are to fit the picture.
    void fitAsked();
    void keepSizeChanged();

private:
    enum class Notice { None, Question, Hint };
    void show(Notice notice);
    void check(const CIImage& picture, const CIImage& standard, const CIImage& fitted);
    void startCheck();
    bool hasFirstValues() const;
    void otherPressed();

    Parts m_parts;
    Notice m_notice = Notice::None;
    std::shared_ptr<CIFilter> m_filter; // the one that the user chose
    CIDictionary m_firstValues;
    std::shared_ptr<CIRenderControl> m_control; // of the check
    std::function<void()> m_nextCheck;
    bool m_isChecking = false;
    IdleThread m_thread;
};
