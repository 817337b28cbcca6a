#include "app/window/HistogramPane.h"

#include "controls/picture/HistogramView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

namespace {

const QString kHiddenKey = QStringLiteral("HistogramHidden");

} // namespace

void installHistogram(Ui::MainWindow& ui, QAction& choice)
{
    auto* view = ui.pictureScrollView->imageView();
    auto* histogram = ui.histogramView;
    histogram->setSource([view] { return view->shownFrame(); });
    QObject::connect(view, &MyImageView::frameShown, histogram, &HistogramView::sourceChanged);

    choice.setChecked(!UserDefaults::standardUserDefaults().objectForKey(kHiddenKey).toBool());
    const auto follow = [row = ui.histogramRow, &choice, pages = ui.mainTabView] {
        row->setVisible(choice.isChecked() && pages->currentIndex() == 0);
    };
    QObject::connect(&choice, &QAction::toggled, histogram, [follow](bool shown) {
        UserDefaults::standardUserDefaults().setObjectForKey(!shown, kHiddenKey);
        follow();
    });
    QObject::connect(ui.mainTabView, &QStackedWidget::currentChanged, histogram, follow);
    follow();
}
