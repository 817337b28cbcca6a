// Frames of the 3D view while its effect turns: gl [--megapixels N]
// Prints for each: median and 95th percentile of milliseconds at 1000 x 700. The first line is the first frame.
#include "benchmarks/TestPicture.h"
#include "effects2d/EffectMaster.h"
#include "effects3d/EvalEffect.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ObjectEffect.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QApplication>

namespace {

constexpr QSize kView(1000, 700);
constexpr int kFrames = 30;

struct Master : EffectMaster, OGLViewMaster {
    CIImage picture;
    std::shared_ptr<BaseEffect> effect;

    Master() { setMainController(this); }
    CIImage backImage() override { return picture; }
    UndoManager* undoManager() override { return nullptr; }
    BaseEffect* getCurrent3DEffect() override { return effect.get(); }
    QMenu* contextMenu() override { return nullptr; }
};

void measure(const char* name, MyOGLView& view, BaseEffect* effect)
{
    std::vector<double> times;
    if (effect)
        effect->mouseDown({0, 0});
    for (int i = -2; i < kFrames; ++i) { // two to warm up
        const double start = bench::milliseconds();
        if (effect)
            effect->mouseDragged({double(7 * i), double(5 * i)});
        view.drawnFrame(kView, 1);
        if (i >= 0)
            times.push_back(bench::milliseconds() - start);
    }
    if (effect)
        effect->mouseUp({0, 0});
    std::ranges::sort(times);
    std::printf("%s\t%.2f\t%.2f\n", name, times[kFrames / 2], times[kFrames * 95 / 100]);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    double megapixels = 24;
    if (argc == 3 && std::string(argv[1]) == "--megapixels")
        megapixels = std::max(0.01, std::atof(argv[2]));
    const int width = int(std::lround(std::sqrt(megapixels * 1.5e6)));
    Master master;
    master.picture = CIImage::fromBitmap(bench::testPicture(width, int(std::lround(megapixels * 1e6 / width))));
    MyOGLView view;
    view.setController(&master);
    if (!view.isUsable()) {
        std::fprintf(stderr, "gl: this machine has no OpenGL\n");
        return 2;
    }
    const double start = bench::milliseconds();
    view.drawnFrame(kView, 1);
    std::printf("first frame\t%.2f\n", bench::milliseconds() - start);
    measure("picture", view, nullptr);

    const auto object = std::make_shared<ObjectEffect>();
    object->awakeFromNib();
    master.effect = object;
    const char* const names[] = {"sphere", "cylinder", "torus", "cube", "cone", "pyramid", "disk"};
    for (int type = ObjectEffect::Sphere; type <= ObjectEffect::Disk; ++type) {
        object->setObjectMode(type);
        object->setRotationO({200, 60, 0, 0});
        measure(names[type], view, object.get());
    }
    const auto surface = std::make_shared<EvalEffect>();
    surface->awakeFromNib();
    master.effect = surface;
    measure("surface", view, surface.get());
    surface->setFilledMode(false);
    measure("net", view, surface.get());
}
