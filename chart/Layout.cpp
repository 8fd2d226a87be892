#include "chart/Layout.h"

#include "chart/CrossHair.h"
#include "chart/Legend.h"
#include "chart/Names.h"
#include "chart/PinTable.h"

#include <cmath>
#include <utility>

namespace chart {
namespace {

Span spanOf(const std::vector<Run>& runs, const View& view)
{
    if (view.zoom)
        return view.zoom->clamped();
    std::vector<Place> places;
    for (const Run& run : runs) {
        for (const RunState& state : run.states)
            places.push_back({Ordinate(state.Tdb, state.W, view.switches.mollier), state.W});
    }
    return Span::around(places);
}

Label titleOf(const Layout& chart)
{
    Label title = Lettering(FontOfTitle(chart.font)).label(chart.view.title);
    title.isTitle = true;
    title.center = {chart.size.width() / 2, title.size.height() * 0.65};
    return title;
}

void append(std::vector<Curve>& all, std::vector<Curve> more)
{
    all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

/// Lays out a chart step by step: the frame, the curves with what is outside them, the overlays, the names.
class Builder
{
public:
    explicit Builder(Layout& ofChart)
        : chart(ofChart), letters(chart.font), table(chart.air, chart.view, letters)
    {}

    void build()
    {
        placeFrame();
        const QRectF& plot = chart.plane.plot;
        if (plot.width() < 1 || plot.height() < 1)
            return; // too small for a chart
        addMarks();
        addProcesses();
        const Rim rim(chart.plane, saturation);
        traceCurves(rim);
        addOverlays();
        AddAxisNames(chart, letters);
        AddMarkNames(chart, letters);
        AddCurveNames(chart, letters);
        AddCrossHair(chart, letters);
    }

private:
    /// The title at the top and the table at the bottom take their space from the chart.
    void placeFrame()
    {
        QRectF area({0, 0}, chart.size);
        if (!chart.view.title.isEmpty()) {
            const Label title = titleOf(chart);
            area.setTop(title.size.height() * 1.3);
            chart.labels.add(title);
        }
        if (chart.view.hasPinTable) {
            area.setBottom(area.bottom() - table.height(chart.size.height()));
            for (const Label& cell :
                 table.within({{4, area.bottom()}, QPointF(chart.size.width() - 4, chart.size.height())}))
                chart.labels.add(cell);
        }
        placePlot(area);
        if (chart.view.hasLegend)
            placeLegend(area);
        chart.labels.avoidLine(saturation);
    }

    void placePlot(const QRectF& area)
    {
        const Span span = spanOf(chart.runs, chart.view);
        chart.frame = FrameIn(area, letters, chart.view, span, chart.air);
        chart.plane = {span, chart.frame.plot, chart.view.switches.mollier};
        const std::vector<Curve> curves = Tracer(chart.air, chart.plane).saturation();
        saturation = curves.empty() ? QPolygonF() : curves.front().line;
    }

    void placeLegend(QRectF area)
    {
        const Legend legend(chart, letters);
        const QPointF outward(chart.plane.isMollier ? 0.7 : -0.7, chart.plane.isMollier ? 0.7 : -0.7);
        const double figures =
            chart.frame.hasEnthalpy ? ScaleDistance(outward, letters, chart.frame) + Tick : 0;
        const double least = figures + letters.width("00000");
        std::vector<Label> labels = legend.inCorner(Rim(chart.plane, saturation), least);
        if (labels.empty()) {
            labels = legend.inStrip({2, area.top() + 2, chart.size.width() - 4, 0});
            area.setTop(area.top() + legend.stripHeight(chart.size.width()));
            placePlot(area);
        }
        for (const Label& label : labels)
            chart.labels.add(label);
    }

    void addMarks()
    {
        int number = 0;
        for (const Run& run : chart.runs) {
            for (const RunState& state : run.states)
                addMark({chart.placeOf(state), QString::number(++number), run.calculator, state});
        }
        QString letter = "A";
        for (const Place& pin : chart.view.pins) {
            const RunState state{"", static_cast<Single>(pin.Tdb), static_cast<Single>(pin.W),
                                 chart.air.pressure()};
            addMark({chart.plane.at(pin), letter, std::nullopt, state});
            letter = NextLetter(letter);
        }
    }

    void addMark(const Mark& mark)
    {
        constexpr double reach = 4.5;
        if (!chart.plane.holds({mark.state.Tdb, mark.state.W}))
            return;
        chart.marks.push_back(mark);
        const QPointF corner(reach, reach);
        chart.labels.avoid(QRectF(mark.place - corner, mark.place + corner));
    }

    void addProcesses()
    {
        for (const Run& run : chart.runs) {
            if (!run.isJoined)
                continue;
            const QLineF whole(chart.placeOf(run.states[0]), chart.placeOf(run.states[1]));
            if (const std::optional<QLineF> line = Within(chart.plane.plot, whole)) {
                chart.processes.push_back({run.calculator, *line, run.isDirected()});
                chart.labels.avoid({line->p1(), line->p2()});
            }
        }
    }

    /// In the order of painting. The wet bulbs and the enthalpy scale need space outside saturation first.
    void traceCurves(const Rim& rim)
    {
        const Tracer tracer(chart.air, chart.plane);
        const Switches& isOn = chart.view.switches;
        append(chart.curves, tracer.dryBulbs());
        append(chart.curves, tracer.humidityRatios());
        if (!chart.air.isDefined())
            return;
        const bool hasEnthalpy = chart.frame.hasEnthalpy; // lines without their scale can't be read
        std::vector<Curve> enthalpies = hasEnthalpy ? tracer.enthalpies() : std::vector<Curve>();
        std::vector<Curve> wetBulbs =
            isOn.wetBulb ? NamedWetBulbs(chart, tracer, rim, letters) : std::vector<Curve>();
        if (hasEnthalpy)
            AddEnthalpyScale(chart, enthalpies, rim, letters);
        if (isOn.specificVolume)
            append(chart.curves, tracer.volumes());
        append(chart.curves, std::move(enthalpies));
        append(chart.curves, std::move(wetBulbs));
        if (isOn.relativeHumidity)
            append(chart.curves, tracer.relativeHumidities());
        append(chart.curves, tracer.saturation());
        chart.airArea = AirArea(chart.air, chart.plane, saturation);
    }

    void addOverlays()
    {
        const Switches& isOn = chart.view.switches;
        if (isOn.comfort && chart.air.isDefined())
            chart.zones = ComfortZones(chart.air, chart.plane, chart.airArea);
        if (isOn.heatRatio)
            chart.heatRatios = HeatRatios(chart.runs, chart.plane, saturation);
        AddOverlayNames(chart, letters);
    }

    Layout& chart;
    Lettering letters;
    PinTable table;
    QPolygonF saturation;
};

} // namespace

Layout::Layout(const QSizeF& ofPicture, const QFont& widgetFont, View lookedAt)
    : size(ofPicture),
      view(std::move(lookedAt)),
      air(Air::inForce()),
      runs(ShownRuns()),
      font(FontOfChart(widgetFont)),
      labels(QRectF(QPointF(0, 0), size))
{
    Builder(*this).build();
}

} // namespace chart
