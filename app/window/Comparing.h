// The picture before and after.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QObject>

#include <functional>

class Document;
class MyImageView;
class QAbstractButton;
class QAction;
class QWidget;

/// Shows the picture without the filter, or the file as it was opened, while a button or its key is held, and left of a
/// divider while the view is split.
class Comparing : public QObject {
    Q_OBJECT

public:
    struct Parts {
        QWidget& window; // where the key is pressed
        QAbstractButton& button;
        QAction& splitItem;
        QAction& openedItem;
        MyImageView& view;
    };
    struct Source {
        std::function<bool()> isEdited; // a filter is
        std::function<bool()> isSeen; // the view is on the screen
    };
    Comparing(const Parts& parts, const Document& document, Source source);

    bool isPossible() const;
    CIImage comparedImage() const;
    void compareOpened(); // or no longer, as the menu item says
    void compare(bool held);
    void split(); // as the menu item says
    /// Another filter or mode may be there. The button can be used if there is something to compare and it `isFree`.
    void update(bool isFree);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void holdKey(bool held);

    Parts m_parts;
    const Document& m_document;
    Source m_source;
    bool m_comparesOpened = false; // with the file, not with the picture without the filter
};
