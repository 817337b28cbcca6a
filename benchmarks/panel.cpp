// From a click in the catalogue to a finished panel: panel [FILTER ...], as lines `filter<TAB>rows<TAB>median_ms`.
// Without names the ten slowest of all filters.
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "benchmarks/TestPicture.h"
#include "controls/panel/ParameterView.h"
#include "platform/foundation/Appearance.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

namespace {

struct Time {
    QString name;
    qsizetype rows;
    double median; // ms
};

Time measured(const QString& name, Controller& controller, const MainWindow& window)
{
    std::vector<double> times;
    for (int i = 0; i < 7; ++i) {
        controller.clearControls();
        const double start = bench::milliseconds();
        controller.addFilterIndex(name, 0);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        times.push_back(bench::milliseconds() - start);
    }
    std::ranges::sort(times);
    return {name, window.findChildren<ParameterView*>().size(), times[times.size() / 2]};
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Appearance::shared().dressApplication();
    MainWindow window;
    Controller controller(window);
    controller.awakeFromNib();
    window.show();
    QApplication::processEvents();

    QStringList names = application.arguments().sliced(1);
    const bool all = names.isEmpty();
    if (all)
        for (const std::string& name : CIFilter::filterNamesInCategory(""))
            names << QString::fromStdString(name);
    std::vector<Time> times;
    for (const QString& name : names)
        times.push_back(measured(name, controller, window));
    std::ranges::sort(times, std::greater(), &Time::median);
    if (all)
        times.resize(std::min<std::size_t>(times.size(), 10));
    for (const auto& [name, rows, median] : times)
        std::printf("%s\t%d\t%.2f\n", qUtf8Printable(name), int(rows), median);
}
