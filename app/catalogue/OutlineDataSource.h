// What an outline list asks of the object that knows its content.
#pragma once

#include <QMetaType>
#include <QVariant>

/// A row of an outline: whatever the data source takes it for. Rows keep their address while the list is shown.
class OutlineItem {
public:
    virtual ~OutlineItem() = default;
};

Q_DECLARE_METATYPE(const OutlineItem*)

/// In all operations a null item stands for the outline itself, whose children are the top rows.
class OutlineDataSource {
public:
    virtual ~OutlineDataSource() = default;

    virtual int outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const = 0;
    virtual bool outlineViewIsItemExpandable(const OutlineItem* item) const = 0;
    virtual const OutlineItem* outlineViewChildOfItem(int index, const OutlineItem* item) const = 0;
    /// Text, or an icon, or nothing (an invalid value).
    virtual QVariant outlineViewObjectValueForTableColumnByItem(
        const QString& column, const OutlineItem* item) const = 0;
    virtual bool outlineViewShouldEditTableColumnItem(const QString& column, const OutlineItem* item) const = 0;
    /// Rows that can't be selected can be walked over and clicked.
    virtual bool outlineViewIsItemSelectable(const OutlineItem* item) const
    {
        return !outlineViewIsItemExpandable(item);
    }
    /// A line for the tool tip; may be empty.
    virtual QString outlineViewToolTipOfItem(const OutlineItem*) const { return {}; }
};
