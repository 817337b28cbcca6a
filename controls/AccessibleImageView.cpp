#include "controls/AccessibleImageView.h"

#include "controls/MyImageView.h"

#include <cmath>

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleImageView : public QAccessibleWidget {
public:
    explicit AccessibleImageView(MyImageView* view)
        : QAccessibleWidget(view, QAccessible::Canvas)
        , m_view(view)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        if (type != QAccessible::Value)
            return QAccessibleWidget::text(type);
        return MyImageView::tr("%1 %").arg(std::lround(m_view->getZoom() * 100));
    }

private:
    MyImageView* m_view;
};

QAccessibleInterface* accessibleImageView(const QString&, QObject* object)
{
    auto* view = qobject_cast<MyImageView*>(object);
    return view ? new AccessibleImageView(view) : nullptr;
}

} // namespace

void installAccessibleImageView()
{
    static const bool installed = (QAccessible::installFactory(accessibleImageView), true);
    Q_UNUSED(installed);
}
