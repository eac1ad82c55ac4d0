#include "solver/near_field.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "solver/cloud.h"
#include "solver/collapse.h"
#include "solver/descent.h"
#include "solver/release.h"

namespace companion {

namespace {

// Whatever the tolerance of a run, so that each cuts the load into the same clouds.
constexpr double kFallTimeTolerance = 1e-8;

std::string Figure(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 4);
  return std::string(text, end.ptr);
}

/// Follows the load through its phases and keeps the record of them.
class Follower {
 public:
  Follower(const Model_Input& input, const Water& water, const std::vector<double>& stops,
           double tolerance);
  Near_Field Take();

 private:
  std::string Name_Of(std::size_t batch, std::size_t cloud) const;
  void Fall_One(const Cloud_Start& start, std::size_t number);
  void Spread_At_Level(Cloud cloud);
  void Land(Cloud cloud);
  void Land_All();
  void Finish(Collapse& collapse);
  void Close(Phase phase, double time);
  void Tell_Load(const Release& release);
  void Tell_Ends();

  Collapse::Tell Tell_Spreading();

  const Model_Input& input_;
  const Water& water_;
  const std::vector<double>& stops_;
  const double tolerance_;
  const bool with_tracer_;
  Near_Field out_;
  std::vector<Cloud> landings_;
  std::vector<std::size_t> landed_phases_;  // of each landing, the phase that it ended
  std::vector<std::unique_ptr<Collapse>> on_bed_;
};

Follower::Follower(const Model_Input& input, const Water& water, const std::vector<double>& stops,
                   double tolerance)
    : input_(input),
      water_(water),
      stops_(stops),
      tolerance_(tolerance),
      with_tracer_(input.Has_Tracer()) {
  for (const double stop : stops) {
    Moving moving;
    moving.time = stop;
    moving.released.assign(input.Species(), 0);
    out_.moving.push_back(std::move(moving));
  }
  out_.released.assign(input.Species(), 0);
  out_.aboard = out_.released;
  const Release release = Release_Load(input, water, [&](const Cloud_Start& start) {
    return Fall_Time(input, water, start, kFallTimeTolerance);
  });
  Tell_Load(release);
  std::size_t number = 0;
  for (const Cloud_Start& start : release.clouds) Fall_One(start, number++);
  Land_All();
  Tell_Ends();
  const auto sooner = [](const auto& one, const auto& other) { return one.time < other.time; };
  std::stable_sort(out_.sources.begin(), out_.sources.end(), sooner);
  std::stable_sort(out_.deposits.begin(), out_.deposits.end(), sooner);
}

Near_Field Follower::Take() { return std::move(out_); }

std::string Follower::Name_Of(std::size_t batch, std::size_t cloud) const {
  return " of cloud " + std::to_string(cloud + 1) + " of " +
         (input_.barge ? "layer " : "opening ") + std::to_string(batch + 1);
}

void Follower::Close(Phase phase, double time) {
  out_.ends.push_back(time);
  out_.phases.push_back(std::move(phase));
}

Collapse::Tell Follower::Tell_Spreading() {
  return [this](std::size_t stop, const Cloud& cloud) {
    Hand_Over(cloud, with_tracer_, water_.Bed(cloud.x, cloud.z), false,
              out_.moving[stop].collapsing);
  };
}

void Follower::Fall_One(const Cloud_Start& start, std::size_t number) {
  std::vector<double> amounts = start.solids;
  if (with_tracer_) amounts.push_back(start.tracer);
  std::vector<double>& account = start.aboard ? out_.aboard : out_.released;
  for (std::size_t i = 0; i < amounts.size(); ++i) account[i] += amounts[i];
  if (start.aboard) return;
  for (Moving& moving : out_.moving)
    if (moving.time >= start.time)
      for (std::size_t i = 0; i < amounts.size(); ++i) moving.released[i] += amounts[i];

  const auto tell = [this](std::size_t stop, const Cloud& cloud) {
    Hand_Over(cloud, with_tracer_, water_.Bed(cloud.x, cloud.z), false, out_.moving[stop].falling);
  };
  Fall fall = Fall_Of(input_, water_, start, number, input_.duration, stops_, tolerance_, tell,
                      out_.sources);
  fall.phase.name = "Descent" + Name_Of(start.batch, start.cloud);
  const std::string why = fall.phase.end;
  Cloud cloud = std::move(fall.end);
  Close(std::move(fall.phase), cloud.time);
  if (fall.in_motion) return;
  const double bed = water_.Bed(cloud.x, cloud.z);
  if (fall.light) {
    Hand_Over_Light(cloud, input_, bed, out_.sources);
  } else if (why == "bed") {
    cloud.spreading = std::abs(cloud.downward);
    Land(std::move(cloud));
  } else if (why == "neutral" || why == "calm") {
    cloud.spreading = cloud.inflow_factor * input_.coefficients.ALPHA0 * std::abs(cloud.downward);
    Spread_At_Level(std::move(cloud));
  } else {
    Hand_Over(cloud, with_tracer_, bed, false, out_.sources);
  }
}

void Follower::Spread_At_Level(Cloud cloud) {
  Collapse collapse(input_, water_, std::move(cloud), false, input_.duration, stops_, tolerance_,
                    Tell_Spreading(), out_.sources, out_.deposits);
  collapse.Advance(input_.duration);
  Finish(collapse);
}

/// Kept for its turn: clouds meet on the bed in the order of their landing.
void Follower::Land(Cloud cloud) {
  landings_.push_back(std::move(cloud));
  landed_phases_.push_back(out_.phases.size() - 1);
}

void Follower::Land_All() {
  std::vector<std::size_t> order(landings_.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [this](std::size_t one, std::size_t other) {
    return landings_[one].time < landings_[other].time;
  });
  for (const std::size_t at : order) {
    Cloud& cloud = landings_[at];
    Collapse* host = nullptr;
    for (const std::unique_ptr<Collapse>& running : on_bed_) {
      if (!running->End().empty()) continue;
      running->Advance(cloud.time);
      if (!running->End().empty()) {
        Finish(*running);
        continue;
      }
      const Cloud& there = running->Now();
      const double dx = cloud.x - there.x, dz = cloud.z - there.z;
      if (host == nullptr && dx * dx + dz * dz <= there.radius * there.radius) host = running.get();
    }
    if (host != nullptr) {
      const Cloud& there = host->Now();
      out_.phases[landed_phases_[at]].end +=
          ", joins " + Name_Of(there.batch, there.cloud).substr(4);
      host->Join(cloud);
      if (!host->End().empty()) Finish(*host);
      continue;
    }
    on_bed_.push_back(std::make_unique<Collapse>(input_, water_, std::move(cloud), true,
                                                 input_.duration, stops_, tolerance_,
                                                 Tell_Spreading(), out_.sources, out_.deposits));
    if (!on_bed_.back()->End().empty()) Finish(*on_bed_.back());
  }
  for (const std::unique_ptr<Collapse>& running : on_bed_) {
    if (!running->End().empty()) continue;
    running->Advance(input_.duration);
    Finish(*running);
  }
}

/// Hands over what is left of a cloud that no longer spreads by itself.
void Follower::Finish(Collapse& collapse) {
  const Cloud cloud = collapse.Now();
  Phase phase = collapse.Take_Phase();
  const std::string why = phase.end;
  phase.name =
      (phase.kind == Phase_Kind::Bed_Collapse ? "Collapse on the bed" : "Collapse at its level") +
      Name_Of(cloud.batch, cloud.cloud);
  Close(std::move(phase), cloud.time);
  const double bed = water_.Bed(cloud.x, cloud.z);
  if (why == "bed")
    Land(cloud);
  else if (why == "light")
    Hand_Over_Light(cloud, input_, bed, out_.sources);
  else if (why != "time")
    Hand_Over(cloud, with_tracer_, bed, why == "held", out_.sources);
}

/// What there is to tell of the load before anything moves.
void Follower::Tell_Load(const Release& release) {
  double aboard = 0, all = 0;
  for (const Cloud_Start& start : release.clouds) {
    all += start.Volume();
    if (start.aboard) aboard += start.Volume();
  }
  if (aboard > 0)
    out_.notes.push_back(
        "The run ends before the vessel is empty: " + Figure(aboard / kCubicFeetPerYard) +
        " cu yd of " + Figure(all / kCubicFeetPerYard) + " stay aboard.");
  if (input_.moisture_adjusts)
    for (std::size_t i = 0; i < input_.batches.size(); ++i)
      if (!(input_.batches[i].moisture > 0))
        out_.notes.push_back(
            "The moisture of " + std::string(input_.barge ? "layer " : "opening ") +
            std::to_string(i + 1) + " is 0, taken as not given: it mixes like water.");
  if (input_.coefficients.CDRAG <= kSpreadingInertia)
    out_.notes.push_back(
        "CDRAG is not above 1/4: the front holds no spreading cloud back, only friction does.");
  if (input_.coefficients.CM < kLeastMassFactor)
    out_.notes.push_back("CM is below " + Figure(kLeastMassFactor) + " and counts as that.");
}

/// What the phases' ends have to tell.
void Follower::Tell_Ends() {
  const auto tell = [this](const std::string& end, const std::string& one,
                           const std::string& more) {
    const auto count = std::count_if(out_.phases.begin(), out_.phases.end(),
                                     [&end](const Phase& phase) { return phase.end == end; });
    if (count == 0) return;
    out_.notes.push_back(count == 1 ? "One cloud " + one
                                    : std::to_string(count) + " clouds " + more);
  };
  tell("light",
       "ended lighter than the water around it: its solids stay at its height, its water and the "
       "tracer in it rise to the depth of their own density.",
       "ended lighter than the water around them: their solids stay at their height, their water "
       "and the tracer in it rise to the depth of their own density.");
  tell("washed away", "was washed away on its fall.", "were washed away on their fall.");
  tell("held", "stays in the depression.", "stay in the depression.");
  tell("time", "was still in motion when the run ended.",
       "were still in motion when the run ended.");
  tell("steps",
       "could not be followed to its end in the steps that a phase may take, and was handed over "
       "before.",
       "could not be followed to their end in the steps that a phase may take, and were handed "
       "over before.");
}

}  // namespace

Near_Field Follow_Clouds(const Model_Input& input, const Water& water,
                         const std::vector<double>& stops, double tolerance) {
  return Follower(input, water, stops, tolerance).Take();
}

}  // namespace companion
