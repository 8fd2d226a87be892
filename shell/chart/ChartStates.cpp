#include "shell/chart/ChartStates.h"

#include "core/AirSnapshot.h"
#include "core/Relations.h"
#include "shell/chart/ChartAir.h"

#include <QPointF>

#include <cmath>

namespace {

AirSnapshot keptAirProperties;

/// A little above 1: saturated air may come out past it by the rounding.
constexpr double mostRelativeHumidity = 1.0001;

bool isTrue(const AirSnapshot& air)
{
    if (!(air.P > 0))
        return false;
    try {
        return SpecificVolumeOf(ToAbsolute(air.Tdb), air.W, air.P) == air.SpVol &&
               EnthalpyOf(air.Tdb, air.W) == air.h && air.W >= 0 &&
               ChartAir(air.P).relativeHumidity(air.Tdb, air.W) <= mostRelativeHumidity;
    } catch (const RunTimeError&) {
        return false;
    }
}

struct NamedAir
{
    const char* name;
    const AirSnapshot& air;
};

/// The states of a calculator that are true, and the processes between them.
class RunBuilder
{
public:
    RunBuilder(std::size_t calculator, const char* title) : run{calculator, title, {}, {}} {}

    bool add(const NamedAir& named)
    {
        if (!isTrue(named.air))
            return false;
        run.states.push_back({named.name, named.air.Tdb, named.air.W, named.air.P});
        return true;
    }
    void join(bool isDirected) { run.processes.push_back({0, 1, isDirected}); }
    ChartRun built() { return std::move(run); }

private:
    ChartRun run;
};

/// Enthalpy beside humidity ratio, both as energies, so that they can be measured together.
QPointF energies(const AirSnapshot& air)
{
    const double latent = IsMetric() ? 2501.0 : 1061.0;
    return {air.h, air.W * latent};
}

/// Whether the mixture lies on the line between its streams, where adiabatic mixing puts it. The air volumes
/// can't tell: the screens of other calculators change the outside air's. A mixture of streams that were
/// saved anew since is none of theirs.
bool isMixtureOfItsStreams()
{
    const QPointF from = energies(MixedOutsideAir);
    const QPointF way = energies(MixedReturnAir) - from;
    const QPointF part = energies(MixedResultAir) - from;
    const double rounding = 2e-5 * (1 + std::fabs(from.x()) + std::fabs(way.x())); // of a few singles
    const double length = std::hypot(way.x(), way.y());
    if (length <= rounding)
        return std::hypot(part.x(), part.y()) <= 2 * rounding;
    const double along = QPointF::dotProduct(way, part) / length;
    const double aside = (way.x() * part.y() - way.y() * part.x()) / length;
    return along >= -rounding && along <= length + rounding && std::fabs(aside) <= rounding;
}

ChartRun mixedAir()
{
    RunBuilder run(1, "Mixed air");
    const bool hasOutside = run.add({"outside", MixedOutsideAir});
    const bool hasReturn = run.add({"return", MixedReturnAir});
    if (hasOutside && hasReturn && isMixtureOfItsStreams() && run.add({"mix", MixedResultAir}))
        run.join(false);
    return run.built();
}

/// A leaving state that the calculator set for other entering air has another pressure, volume or moisture.
ChartRun coolingCoil()
{
    RunBuilder run(2, "Cooling");
    const AirSnapshot& in = CoolingEnteringAir;
    const AirSnapshot& out = CoolingLeavingAir;
    const bool isOneRun = out.P == in.P && out.AirVolume == in.AirVolume && out.Tdb < in.Tdb;
    if (run.add({"entering", in}) && isOneRun && run.add({"leaving", out}))
        run.join(true);
    return run.built();
}

ChartRun heatingCoil()
{
    RunBuilder run(3, "Heating");
    const AirSnapshot& in = HeatingEnteringAir;
    const AirSnapshot& out = HeatingLeavingAir;
    const bool isOneRun = out.P == in.P && out.W == in.W; // the coil adds no moisture
    if (run.add({"entering", in}) && isOneRun && run.add({"leaving", out}))
        run.join(true);
    return run.built();
}

ChartRun humidification()
{
    RunBuilder run(4, "Humidification");
    const bool isOneRun = HumidDesiredAir.P == HumidOutsideAir.P;
    if (run.add({"outside", HumidOutsideAir}) && isOneRun && run.add({"desired", HumidDesiredAir}))
        run.join(true);
    return run.built();
}

ChartRun airProperties()
{
    RunBuilder run(0, "Air properties");
    run.add({"air", keptAirProperties});
    return run.built();
}

} // namespace

void KeepAirProperties()
{
    try {
        const AirSnapshot air = AirSnapshot::of(StatePoint, 0);
        if (isTrue(air))
            keptAirProperties = air;
    } catch (const RunTimeError&) {
        // A field that holds no number belongs to no state.
    }
}

std::vector<ChartRun> LastRuns()
{
    std::vector<ChartRun> runs{airProperties(), mixedAir(), coolingCoil(), heatingCoil(), humidification()};
    std::erase_if(runs, [](const ChartRun& run) { return run.states.empty(); });
    return runs;
}
