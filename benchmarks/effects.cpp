// How long generated effects take on a picture of 12 megapixels: ./bench effects [--cores N]
//
// "draw" makes the layer and paints all its pixels, as Generate does to who looks at every pixel; "window" is what the
// program does when a control moves: a new layer, shown in a view of 1400 x 900; "drag" a step of the anchor there;
// "composite" a change of opacity; "full" the finished picture for Apply and saving.
#include "benchmarks/TestPicture.h"
#include "effects2d/AnchoredEffect.h"
#include "effects2d/CustomEffects.h"
#include "effects2d/EffectMaster.h"
#include "effects2d/GeneratedEffect.h"
#include "platform/foundation/UndoManager.h"

#include <QApplication>
#include <tbb/global_control.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

namespace {

constexpr int kWidth = 4000, kHeight = 3000;
constexpr double kViewScale = 900.0 / kHeight;
constexpr int kRuns = 5;

struct Master : EffectMaster {
    CIImage picture;
    UndoManager undo;

    Master() { setMainController(this); }
    CIImage backImage() override { return picture; }
    UndoManager* undoManager() override { return &undo; }
};

/// Milliseconds, the median of a few runs.
double timeOf(const std::function<void()>& work)
{
    work(); // pages are there, caches are warm
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        const double start = bench::milliseconds();
        work();
        times.push_back(bench::milliseconds() - start);
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return times[kRuns / 2];
}

void measure(const BaseEffect& prototype)
{
    const std::shared_ptr<BaseEffect> copy = prototype.mycopy();
    auto& effect = static_cast<GeneratedEffect&>(*copy);
    const quartz::Part whole = quartz::Part::whole({kWidth, kHeight});
    const quartz::Part view{kViewScale, 0, 900, {1200, 900}};
    effect.drawPart(view);

    const double draw = timeOf([&] {
        effect.makeImageEffect();
        if (effect.effectImage())
            effect.effectImage()->rendered(whole);
        else // a filter's recipe
            BaseEffect::renderedPart(effect.getDrawImage(), whole);
    });
    const double window = timeOf([&] {
        effect.makeImageEffect();
        effect.drawPart(view);
    });
    const double composite = timeOf([&] {
        effect.seOpacity(effect.opacity() > 50 ? 40.0f : 60.0f);
        effect.drawPart(view);
    });
    const double full = timeOf([&] { BaseEffect::renderedPart(effect.getDrawImage(), whole); });
    std::printf("%-18s %8.1f %8.1f ", effect.myname().c_str(), draw, window);
    if (effect.isMousing()) {
        double x = 500;
        effect.mouseDown({x, 800});
        std::printf("%8.1f ", timeOf([&] {
            effect.mouseDragged({x += 40, 800});
            effect.drawPart(view);
        }));
        effect.mouseUp({x, 800});
    } else {
        std::printf("%8s ", "");
    }
    std::printf("%8.1f %8.1f\n", composite, full);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const std::size_t cores = argc == 3 && std::strcmp(argv[1], "--cores") == 0 ? std::size_t(std::atoi(argv[2])) : 1;
    const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, std::max<std::size_t>(cores, 1));
    Master master;
    master.picture = CIImage::fromBitmap(bench::testPicture(kWidth, kHeight));
    std::printf("%d x %d, %zu core(s), ms\n%-18s %8s %8s %8s %8s %8s\n", kWidth, kHeight, cores, "effect", "draw",
        "window", "drag", "compose", "full");
    for (const std::shared_ptr<BaseEffect>& prototype : customEffectPrototypes())
        measure(*prototype);
    return 0;
}
