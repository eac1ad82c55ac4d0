#include "results/drawings/maxima_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "platform/text/counted.h"
#include "results/csv_text.h"
#include "results/drawings/map_words.h"
#include "results/drawings/result_words.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr double kLeastTime = 1;          // s, of an axis
constexpr double kLikeBackground = 1e-6;  // a part of it; the outputs have seven digits
constexpr int kMostFigures = 7;           // of the outputs

/// One of the results that are drawn.
struct Source {
  const Results* results;
  int species;
  bool of_other;
  std::string prefix;  // of its names: "Bay, "
};

struct Area_Choice {
  Result_Where where;
  bool wanted;
};

// Where inside and outside are not told apart there is one curve, which no box puts away.
std::vector<Area_Choice> Areas_Of(const Results& results, const Maxima_Choice& choice) {
  std::vector<Area_Choice> areas;
  if (Has_Site(results)) {
    areas = {{Result_Where::inside, choice.inside}, {Result_Where::outside, choice.outside}};
  } else {
    areas = {{Result_Where::anywhere, true}};
  }
  areas.push_back({Result_Where::outside_zid, choice.outside_zid && Has_Zid(results)});
  return areas;
}

void Add_Curves(Maxima_Drawing& drawing, const Source& source, const Maxima_Choice& choice) {
  for (const Area_Choice& area : Areas_Of(*source.results, choice)) {
    if (!area.wanted) continue;
    drawing.curves.push_back(
        {source.prefix + Where_Words(area.where, *source.results), area.where, source.of_other,
         Series_Of(*source.results, source.species, area.where, choice.depth)});
  }
}

std::string Spans_Words(const std::vector<Time_Span>& spans) {
  std::string text;
  for (const Time_Span& span : spans) {
    text += (text.empty() ? "exceeded from " : " and from ") + Time_Words(span.from) + " to " +
            Time_Words(span.to);
  }
  return text.empty() ? "not exceeded" : text;
}

// A crossing between output times is no better known than that.
std::vector<Time_Span> In_Whole_Seconds(std::vector<Time_Span> spans) {
  for (Time_Span& span : spans) span = {std::round(span.from), std::round(span.to)};
  return spans;
}

// As other readings, in more figures where it would seem to be the limit that it is above or below.
std::string Worst_Words(double worst, double limit, const std::string& unit) {
  std::string words = Reading_Words(worst, unit);
  for (int figures = kReadingFigures + 1; worst != limit && figures <= kMostFigures; ++figures) {
    if (words != Value_Words(limit, unit)) break;
    words = Shortest_Number(In_Digits(worst, figures)) + " " + unit;
  }
  return words;
}

Maxima_Limit Limit_Of(const Result_Limit& limit, const Source& source, const std::string& unit) {
  Maxima_Limit drawn;
  drawn.name = source.prefix + limit.of + ", " + Value_Words(limit.value, unit);
  drawn.value = limit.value;
  drawn.from = limit.from;
  drawn.where = limit.where;
  drawn.of_other = source.of_other;
  if (limit.exceeded) drawn.exceeded = {{limit.first, limit.last}};
  drawn.words = drawn.name +
                ", at any point and depth: " + Spans_Words(In_Whole_Seconds(drawn.exceeded)) +
                ", largest " + Worst_Words(limit.worst, limit.value, unit) + " at " +
                Time_Words(limit.worst_time);
  return drawn;
}

// The solver's times are those of all depths: over the curves of one they would say that it is
// there that the limit is exceeded.
void Add_Limits(Maxima_Drawing& drawing, const Source& source, bool one_depth) {
  for (const Result_Limit& limit : source.results->limits) {
    if (limit.species != source.species) continue;
    drawing.limits.push_back(Limit_Of(limit, source, drawing.unit));
    if (one_depth) drawing.limits.back().exceeded.clear();
  }
}

// What the solver found at that place, where it says otherwise than the curve: it looks at any
// point and depth, and at more times.
std::string Found_Above(const Maxima_Curve& curve, const std::vector<Source>& sources, double value,
                        const std::string& unit) {
  const Result_Limit* found = nullptr;
  for (const Source& source : sources) {
    if (source.of_other != curve.of_other) continue;
    for (const Result_Limit& limit : source.results->limits) {
      if (limit.species != source.species || limit.where != curve.where) continue;
      if (limit.worst > value && (found == nullptr || limit.worst > found->worst)) found = &limit;
    }
  }
  if (found == nullptr) return "";
  return ", but " + Worst_Words(found->worst, value, unit) + " at any point and depth at " +
         Time_Words(found->worst_time);
}

void Hold_Against(Maxima_Drawing& drawing, const std::vector<Source>& sources,
                  const Maxima_Choice& choice) {
  const double value = *choice.held_against;
  Maxima_Limit typed;
  typed.name = Value_Words(value, drawing.unit);
  typed.value = value;
  typed.where = Result_Where::anywhere;
  typed.words = typed.name + " held against the curves, means over cells at the output times and " +
                (choice.depth ? Depth_Words(*choice.depth) : "output depths") + ":";
  for (const Maxima_Curve& curve : drawing.curves) {
    const auto spans = Spans_Above(curve.values, value);
    typed.words += (typed.words.back() == ':' ? " " : "; ") + curve.name + " " +
                   Spans_Words(In_Whole_Seconds(spans));
    if (spans.empty()) typed.words += Found_Above(curve, sources, value, drawing.unit);
    typed.exceeded.insert(typed.exceeded.end(), spans.begin(), spans.end());
  }
  drawing.limits.push_back(typed);
}

std::vector<double> All_Values(const Maxima_Drawing& drawing) {
  std::vector<double> values;
  for (const Maxima_Curve& curve : drawing.curves) {
    for (const Timed_Value& value : curve.values) values.push_back(value.value);
  }
  return values;
}

Axis_Scale Value_Scale(const Maxima_Drawing& drawing, bool logarithmic) {
  std::vector<double> values = All_Values(drawing);
  for (const Maxima_Limit& limit : drawing.limits) values.push_back(limit.value);
  if (!logarithmic) {
    values.push_back(0);
    Value_Range range = *Range_Of(values);
    if (range.high == range.low) range.high = 1;
    return Scale_Over(range, (range.high - range.low) / 2);
  }
  const double least = Range_Of(values).value_or(Value_Range{}).high * std::pow(10, -kMostDecades);
  std::erase_if(values, [least](double value) { return value < least; });
  return Log_Scale_Over(values);
}

Axis_Scale Time_Scale(const Maxima_Drawing& drawing) {
  std::vector<double> times = {0};
  for (const Maxima_Curve& curve : drawing.curves) {
    for (const Timed_Value& value : curve.values) times.push_back(value.time);
  }
  const Value_Range range = *Range_Of(times);
  return Scale_Over({range.low, std::max(range.high, range.low + kLeastTime)}, kLeastTime);
}

bool Has_A_Place(const Axis_Scale& scale, double value) {
  const double part = Part_Of_Axis(scale, value);
  return std::isfinite(part) && (!scale.logarithmic || part > -1e-9);
}

bool Has_Depth(const Results& results, double depth) {
  return std::ranges::find(results.maxima, depth, &Result_Maxima::depth) != results.maxima.end();
}

bool Has_Time(const Maxima_Curve& curve, double time) {
  return std::ranges::find(curve.values, time, &Timed_Value::time) != curve.values.end();
}

void Append(std::string& text, const std::string& sentence, char between = ' ') {
  if (sentence.empty()) return;
  if (!text.empty()) text += between;
  text += sentence;
}

// What is wrong with drawing nothing but a line on the ground.
std::string Emptiness(const Maxima_Drawing& drawing, double background) {
  if (drawing.curves.empty()) return "No curve is chosen.";
  const auto range = Range_Of(All_Values(drawing));
  if (!range) return "The outputs hold no values of it.";
  if (range->high > background * (1 + kLikeBackground)) return "";
  if (background == 0) return "All values are 0.";
  return "All values are those of the background, " + Value_Words(background, drawing.unit) + ".";
}

void Tell(Maxima_Drawing& drawing, const std::string& missing, double background) {
  for (const Maxima_Limit& limit : drawing.limits) Append(drawing.note, limit.words + ".", '\n');
  Append(drawing.note, Emptiness(drawing, background), '\n');
  if (drawing.left_out > 0) {
    Append(drawing.note,
           Counted(static_cast<std::size_t>(drawing.left_out), "value") +
               (drawing.value.logarithmic ? " below the logarithmic axis left out as gaps."
                                          : " without a place left out as gaps."),
           '\n');
  }
  Append(drawing.note, missing, '\n');
  drawing.description = drawing.title + ", the largest means over cells against time.";
  for (const Maxima_Curve& curve : drawing.curves) {
    const auto largest = std::ranges::max_element(curve.values, {}, &Timed_Value::value);
    if (largest == curve.values.end()) continue;
    Append(drawing.description, curve.name + ": largest " +
                                    Reading_Words(largest->value, drawing.unit) + " at " +
                                    Time_Words(largest->time) + ".");
  }
  Append(drawing.description, drawing.note);
}

}  // namespace

Maxima_Drawing Draw_Maxima(const Results& own, const Results* other, const Maxima_Choice& choice) {
  Maxima_Drawing drawing;
  drawing.time = {0, 1, 1, 0};
  const auto index = static_cast<std::size_t>(choice.species - 1);
  if (index >= own.species.size()) {
    drawing.title = "No species";
    drawing.note = drawing.description = "The outputs hold no species.";
    return drawing;
  }
  if (own.maxima.empty()) {
    drawing.title = own.species[index].name;
    drawing.note = drawing.description =
        "The run has no concentrations: it ends with descent and collapse.";
    return drawing;
  }
  const Result_Species& species = own.species[index];
  drawing.unit = species.unit;
  drawing.title =
      species.name + " at " + (choice.depth ? Depth_Words(*choice.depth) : "all depths");
  std::vector<Source> sources = {{&own, choice.species, false, ""}};
  std::string missing;
  if (other != nullptr) {
    const auto [own_name, other_name] = Project_Names(own, *other);
    sources[0].prefix = own_name + ", ";
    if (const auto same = Same_Species(*other, own, choice.species)) {
      sources.push_back({other, *same, true, other_name + ", "});
    } else {
      missing = other_name + " has no " + species.name + " in " + species.unit + ".";
    }
  }
  for (const Source& source : sources) {
    Add_Curves(drawing, source, choice);
    if (choice.limits) Add_Limits(drawing, source, choice.depth.has_value());
  }
  if (other != nullptr && choice.depth && missing.empty() && !Has_Depth(*other, *choice.depth)) {
    missing =
        Project_Names(own, *other).second + " has no values at " + Depth_Words(*choice.depth) + ".";
  }
  std::erase_if(drawing.curves,
                [](const Maxima_Curve& curve) { return curve.of_other && curve.values.empty(); });
  if (choice.held_against) Hold_Against(drawing, sources, choice);
  drawing.time = Time_Scale(drawing);
  drawing.value = Value_Scale(drawing, choice.logarithmic);
  for (const double value : All_Values(drawing)) {
    if (!Has_A_Place(drawing.value, value)) ++drawing.left_out;
  }
  Tell(drawing, missing, Background_Of(own, choice.species));
  return drawing;
}

std::vector<double> Reading_Times(const Maxima_Drawing& drawing) {
  std::vector<double> times;
  for (const Maxima_Curve& curve : drawing.curves) {
    for (const Timed_Value& value : curve.values) times.push_back(value.time);
  }
  std::ranges::sort(times);
  times.erase(std::unique(times.begin(), times.end()), times.end());
  return times;
}

std::optional<double> Nearest_Reading(const Maxima_Drawing& drawing, double time) {
  std::optional<double> nearest;
  for (const double one : Reading_Times(drawing)) {
    if (!nearest || std::abs(one - time) < std::abs(*nearest - time)) nearest = one;
  }
  return nearest;
}

std::optional<double> Value_At(const Maxima_Curve& curve, double time) {
  const auto after = std::ranges::lower_bound(curve.values, time, {}, &Timed_Value::time);
  if (after == curve.values.end()) return std::nullopt;
  if (after->time == time) return after->value;
  if (after == curve.values.begin()) return std::nullopt;
  const Timed_Value& before = *std::prev(after);
  return before.value +
         (time - before.time) / (after->time - before.time) * (after->value - before.value);
}

std::string Reading_Words(const Maxima_Drawing& drawing, double time) {
  std::string words;
  for (const Maxima_Curve& curve : drawing.curves) {
    const auto value = Value_At(curve, time);
    if (!value) continue;
    const bool exact = Has_Time(curve, time);
    words += (words.empty() ? "" : "; ") + curve.name + (exact ? " " : " about ") +
             Reading_Words(*value, drawing.unit);
  }
  return words.empty() ? "" : Time_Words(time) + ": " + words;
}

std::string Maxima_Csv(const Maxima_Drawing& drawing) {
  std::vector<std::string> cells = {"time (s)"};
  for (const Maxima_Curve& curve : drawing.curves) {
    cells.push_back(curve.name + " (" + drawing.unit + ")");
  }
  std::string csv = Csv_Line(cells);
  for (const double time : Reading_Times(drawing)) {
    cells = {Csv_Number(time)};
    for (const Maxima_Curve& curve : drawing.curves) {
      const auto at = std::ranges::find(curve.values, time, &Timed_Value::time);
      cells.push_back(at == curve.values.end() ? "" : Csv_Number(at->value));
    }
    csv += Csv_Line(cells);
  }
  return csv;
}

}  // namespace barvon
