#include "solver/collapse.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "solver/det_math.h"
#include "solver/ode.h"
#include "solver/spreading.h"
#include "solver/trail.h"

namespace companion {

struct Collapse::Work : Spreading {
  const double until;
  const std::vector<double>& stops;
  const double tolerance;
  const Tell tell;
  std::vector<Source>& sources;
  std::vector<Deposit>& deposits;

  std::optional<Integrator> integrator;
  View view;
  std::vector<double> amounts;
  Trail trail;
  Row_Keeper rows;
  Phase phase;
  std::string end;
  double next_radius = 0, hole_radius = 0;
  bool past_hole = true;
  std::size_t stop = 0;

  Work(const Model_Input& the_input, const Water& the_water, Cloud start, bool bed, double last,
       const std::vector<double>& the_stops, double the_tolerance, Tell the_tell,
       std::vector<Source>& the_sources, std::vector<Deposit>& the_deposits)
      : Spreading(the_input, the_water, std::move(start), bed),
        until(last),
        stops(the_stops),
        tolerance(the_tolerance),
        tell(std::move(the_tell)),
        sources(the_sources),
        deposits(the_deposits),
        trail(origin.number) {}

  void Begin();
  void Leave();
  void Advance(double time);
};

/// Sets the equations off from `origin`.
void Collapse::Work::Begin() {
  integrator.emplace([this](double time, const Integrator::Values& values,
                            Integrator::Values& rates) { Rates(time, values, rates); },
                     tolerance, Floors());
  Integrator::Values state = State();
  integrator->Rise_From(state.size() - origin.solids.size());  // what each fraction lost
  integrator->Start(origin.time, std::move(state));
  view = Look(origin.time, integrator->Now());
  amounts = view.cloud.Amounts(input.Has_Tracer());
}

void Collapse::Work::Leave() {
  if (on_bed)
    trail.Leave_Deposits(deposits);
  else
    trail.Leave_From_Foot(view.bed, sources);
}

void Collapse::Work::Advance(double time) {
  const auto past = [this](double when, const Integrator::Values& state) {
    const View seen = Look(when, state);
    double nearest = std::max(Over(seen).past, seen.cloud.radius - next_radius);
    if (!past_hole) nearest = std::max(nearest, seen.cloud.radius - hole_radius);
    return nearest;
  };
  const auto tell_stop = [this] {
    if (stop >= stops.size() || stops[stop] > integrator->Time()) return;
    Leave();
    tell(stop++, view.cloud);
  };
  while (end.empty() && integrator->Time() < time) {
    tell_stop();
    const double limit = stop < stops.size() ? std::min(stops[stop], time) : time;
    integrator->Step(limit, past);
    view = Look(integrator->Time(), integrator->Now());
    std::vector<double> now = view.cloud.Amounts(input.Has_Tracer());
    std::vector<double>& lost = on_bed ? phase.settled : phase.fallen;
    for (std::size_t i = 0; i < now.size(); ++i) lost[i] += amounts[i] - now[i];
    amounts = std::move(now);
    trail.Pass(view.cloud, amounts);
    rows.Add(Row(view));
    if (view.cloud.radius >= next_radius) {
      Leave();
      next_radius = view.cloud.radius * kRadiusStep;
    }
    if (const Ending ending = Over(view); ending.Over()) end = ending.why;
    if (!past_hole && view.cloud.radius >= hole_radius) {
      past_hole = true;
      if (end.empty() && Fits_The_Hole(view)) end = "held";
    }
    if (end == "spread" && !past_hole && Fits_The_Hole(view)) end = "held";
    if (end.empty() && integrator->Exhausted()) end = "steps";
  }
  if (end.empty() && integrator->Time() >= until) {
    tell_stop();
    end = "time";
  }
  if (!end.empty()) Leave();
}

Collapse::Collapse(const Model_Input& input, const Water& water, Cloud start, bool on_bed,
                   double until, const std::vector<double>& stops, double tolerance, Tell tell,
                   std::vector<Source>& sources, std::vector<Deposit>& deposits)
    : work_(std::make_unique<Work>(input, water, std::move(start), on_bed, until, stops, tolerance,
                                   std::move(tell), sources, deposits)) {
  Work& work = *work_;
  if (on_bed) work.Fit_Under_The_Surface();
  const Cloud& cloud = work.origin;
  work.Begin();
  work.phase.kind = on_bed ? Phase_Kind::Bed_Collapse : Phase_Kind::Level_Collapse;
  work.phase.batch = cloud.batch;
  work.phase.cloud = cloud.cloud;
  work.phase.washed.assign(input.Species(), 0);
  work.phase.fallen = work.phase.settled = work.phase.washed;
  work.trail.Begin(work.view.cloud, work.amounts);
  work.rows.Add(work.Row(work.view));
  work.next_radius = cloud.radius * kRadiusStep;
  work.stop = static_cast<std::size_t>(std::lower_bound(stops.begin(), stops.end(), cloud.time) -
                                       stops.begin());
  work.hole_radius = std::sqrt(std::max(0.0, input.hole_x * input.hole_z) / kPi);
  work.past_hole =
      !on_bed || !water.In_Depression(cloud.x, cloud.z) || cloud.radius >= work.hole_radius;
  if (const Ending ending = work.Over(work.view); ending.Over()) work.end = ending.why;
  if (work.end == "spread" && !work.past_hole && work.Fits_The_Hole(work.view)) work.end = "held";
}

Collapse::~Collapse() = default;
Collapse::Collapse(Collapse&&) noexcept = default;

void Collapse::Advance(double time) { work_->Advance(std::min(time, work_->until)); }

void Collapse::Join(const Cloud& landing) {
  Work& work = *work_;
  work.Leave();
  Cloud joined = work.view.cloud;
  const double own = work.view.mass;
  const double added = Cloud_Mass(landing.fluid_mass, work.kinds, landing.solids);
  if (!(own + added > 0)) return;
  const double share = added / (own + added);
  const auto mix = [share](double& value, double other) { value += share * (other - value); };
  mix(joined.spreading, landing.spreading * std::min(1.0, landing.radius / joined.radius));
  mix(joined.x, landing.x);
  mix(joined.z, landing.z);
  mix(joined.velocity_x, landing.velocity_x);
  mix(joined.velocity_z, landing.velocity_z);
  joined.fluid_volume += landing.fluid_volume;
  joined.fluid_mass += landing.fluid_mass;
  joined.tracer += landing.tracer;
  for (std::size_t i = 0; i < joined.solids.size(); ++i) joined.solids[i] += landing.solids[i];
  work.origin = std::move(joined);
  work.Fit_Under_The_Surface();
  work.Begin();
  work.trail.Begin(work.view.cloud, work.amounts);
  work.rows.Add(work.Row(work.view));
  if (const Ending ending = work.Over(work.view); ending.Over()) work.end = ending.why;
}

const std::string& Collapse::End() const { return work_->end; }
const Cloud& Collapse::Now() const { return work_->view.cloud; }

Phase Collapse::Take_Phase() {
  Phase phase = std::move(work_->phase);
  phase.end = work_->end;
  phase.rows = work_->rows.Take();
  phase.left = work_->amounts;
  return phase;
}

}  // namespace companion
