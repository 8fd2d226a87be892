// Laying out and painting the chart, beside a plain fill of the same area. Processor time, with all fonts
// loaded.

#include <QPalette>

#include "chart/Layout.h"
#include "chart/Painter.h"
#include "chart/Reading.h"
#include "core/MainMod.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

namespace {

constexpr QSize size(2560, 1440);

AirSnapshot airAt(Single tdb, Single percent)
{
    StatePoint.Tdb = tdb;
    StatePoint.P = BaroPressure;
    StatePoint.RH = percent;
    SolveFromRH();
    return AirSnapshot::of(StatePoint, 1000.0F);
}

void keepRuns()
{
    UnitSystem = False16;
    BaroPressure = 14.696F;
    KeepLastRun(Calculator::Cooling, {{"entering", airAt(85, 50)}, {"leaving", airAt(57, 93)}});
    KeepLastRun(Calculator::MixedAir,
                {{"outside", airAt(95, 40)}, {"return", airAt(75, 50)}, {"mix", airAt(80, 48)}});
}

chart::View viewOf(const benchmark::State& state)
{
    chart::View view;
    view.switches.mollier = state.range(0) != 0;
    return view;
}

void paint(QImage& image, const chart::View& view)
{
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    chart::Paint(painter, chart::Layout(size, QApplication::font(), view), QApplication::palette());
}

void fillPlain(benchmark::State& state)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto _ : state)
        image.fill(Qt::lightGray);
}
BENCHMARK(fillPlain)->Unit(benchmark::kMillisecond);

void layOut(benchmark::State& state)
{
    const chart::View view = viewOf(state);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(chart::Layout(size, QApplication::font(), view));
}
BENCHMARK(layOut)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void layOutAndPaint(benchmark::State& state)
{
    const chart::View view = viewOf(state);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto _ : state)
        paint(image, view);
}
BENCHMARK(layOutAndPaint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// In 20 steps to a sixth of the span, and back.
void zoomStep(benchmark::State& state)
{
    chart::View view = viewOf(state);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const chart::Layout whole(size, QApplication::font(), view);
    chart::Plane plane = whole.plane;
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        plane.span = plane.zoomed({1500, 900}, step++ % 40 < 20 ? 1.1 : 1 / 1.1);
        view.zoom = plane.span;
        paint(image, view);
    }
}
BENCHMARK(zoomStep)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void panStep(benchmark::State& state)
{
    chart::View view = viewOf(state);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    chart::Plane plane = chart::Layout(size, QApplication::font(), view).plane;
    plane.span = plane.zoomed({1500, 900}, 2);
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double way = step++ % 40 < 20 ? 12 : -12;
        plane.span = plane.moved({way, way});
        view.zoom = plane.span;
        paint(image, view);
    }
}
BENCHMARK(panStep)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void readOnePlace(benchmark::State& state)
{
    const chart::Air air = chart::Air::inForce();
    double tdb = 60;
    for ([[maybe_unused]] auto _ : state) {
        tdb = tdb > 110 ? 60 : tdb + 0.1;
        benchmark::DoNotOptimize(chart::ReadingAt(air, {tdb, 0.008}));
    }
}
BENCHMARK(readOnePlace)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    keepRuns();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
