// The engine's smallest parts.
#include "benchmarks/TestPicture.h"

#include <benchmark/benchmark.h>

namespace {

void copy(benchmark::State& state, CIFormat format, double scale)
{
    const CIBitmap picture = bench::testPicture(2048, 1024);
    const CIImage image = CIImage::fromBitmap(picture);
    CIBitmap out(int(2048 * scale), int(1024 * scale), format, CIAlpha::Opaque);
    const CIContext context;
    for (auto _ : state)
        context.renderInto(out, 0, out.height(), image, scale);
    state.SetItemsProcessed(state.iterations() * out.width() * out.height());
}

void halvedCopies(benchmark::State& state)
{
    const CIBitmap picture = bench::testPicture(4096, 2048);
    CIBitmap out(64, 32, CIFormat::RGBA8, CIAlpha::Opaque);
    const CIContext context;
    for (auto _ : state) // a new image has no halved copies yet
        context.renderInto(out, 0, 32, CIImage::fromBitmap(picture), 1 / 64.0);
    state.SetItemsProcessed(state.iterations() * picture.width() * picture.height());
}

BENCHMARK_CAPTURE(copy, codes_to_codes, CIFormat::RGBA8, 1.0)->UseRealTime();
BENCHMARK_CAPTURE(copy, codes_to_floats, CIFormat::RGBAf, 1.0)->UseRealTime();
BENCHMARK_CAPTURE(copy, codes_to_half_size, CIFormat::RGBA8, 0.5)->UseRealTime();
BENCHMARK(halvedCopies)->UseRealTime();

} // namespace
