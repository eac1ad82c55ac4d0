#include "results/drawings/map_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "results/cell_places.h"
#include "results/csv_text.h"
#include "results/drawings/common_times.h"
#include "results/drawings/result_words.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr int kPlaceDigits = 10;  // places come with seven and are multiplied by whole numbers

const std::vector<Result_Map>& Maps_Of(const Results& results, Map_Kind kind) {
  return kind == Map_Kind::thickness ? results.beds : results.maps;
}

const Result_Map* Find(const Results& results, const Map_View& view) {
  const bool largest = view.largest && view.kind == Map_Kind::concentration;
  for (const Result_Map& map : largest ? results.most : Maps_Of(results, view.kind)) {
    if (map.species != view.species) continue;
    if (view.kind == Map_Kind::concentration && !Is_Same_Written(map.depth, view.depth)) continue;
    if (largest || Is_Same_Written(map.time, view.time)) return &map;
  }
  return nullptr;
}

void Insert(std::vector<double>& values, double value) {
  const auto is_same = [value](double known) { return Is_Same_Written(known, value); };
  if (std::ranges::none_of(values, is_same)) values.push_back(value);
}

double Nearest(const std::vector<double>& values, double wanted) {
  return *std::ranges::min_element(values, {},
                                   [wanted](double value) { return std::abs(value - wanted); });
}

std::optional<int> Number_In(const Results& other, const Results& own, int species) {
  if (species == 0) return 0;
  return Same_Species(other, own, species);
}

bool Is_Known(const Results& results, int species) {
  return species >= 0 && static_cast<std::size_t>(species) <= results.species.size();
}

/// The smallest background and the largest value.
struct Span {
  double base = 0, largest = 0;
};

void Take_In(std::optional<Span>& span, const Result_Map& map) {
  const double base = Cell_Base(map);
  if (!span) span = Span{base, base};
  span->base = std::min(span->base, base);
  for (const double value : map.values) span->largest = std::max(span->largest, value);
}

/// Of all maps that belong to one scale: the species at the depth, at all times. The largest over
/// time has a scale of its own: the solver looks at more times than it tells, and what is high for
/// seconds would leave the others blank.
std::optional<Span> Span_Of_All(const Results& results, const Map_View& view) {
  std::optional<Span> span;
  const bool thickness = view.kind == Map_Kind::thickness;
  const bool largest = view.largest && !thickness;
  for (const Result_Map& map : largest ? results.most : Maps_Of(results, view.kind)) {
    if (map.species != view.species) continue;
    if (thickness || Is_Same_Written(map.depth, view.depth)) Take_In(span, map);
  }
  return span;
}

std::vector<double> Levels_For(const Span& span, bool logarithmic) {
  return logarithmic ? Log_Levels(span.largest, span.base) : Even_Levels(span.base, span.largest);
}

double Largest_Size(const Cell_Values& cells) {
  double largest = 0;
  for (const double value : cells.values) {
    if (std::isfinite(value)) largest = std::max(largest, std::abs(value));
  }
  return largest;
}

Cell_Values Difference(const Results& own, const Result_Map& map, const Results& other,
                       const Result_Map& other_map) {
  Cell_Values cells = Whole_Grid(own.grid, map);
  const Cell_Values others = Whole_Grid(other.grid, other_map);
  for (std::size_t i = 0; i < cells.values.size(); ++i) {
    cells.values[i] = Written_Difference(cells.values[i], others.values[i], kMapDigits);
  }
  return cells;
}

/// The larger of `largest` and the size of the largest difference at any cell. It is looked for at
/// every time: only what may be larger is brought to the digits of the maps, which adds half a unit
/// of the last one at most, and no more than the difference itself.
double Larger_Difference(double largest, const Cell_Values& ones, const Cell_Values& others) {
  const double half_unit = std::pow(10, 1 - kMapDigits) / 2;  // of the larger value, at most
  for (std::size_t i = 0; i < ones.values.size(); ++i) {
    const double one = ones.values[i], other = others.values[i];
    const double size = std::abs(one - other);
    const double added = std::min(half_unit * std::max(std::abs(one), std::abs(other)), size);
    if (!(size + added > largest)) continue;
    const double written = std::abs(Written_Difference(one, other, kMapDigits));
    if (std::isfinite(written)) largest = std::max(largest, written);
  }
  return largest;
}

std::string Grid_Words(const Result_Grid& grid) {
  return std::to_string(grid.rows) + " x " + std::to_string(grid.columns) + " points of " +
         Depth_Words(grid.spacing_x) + " by " + Depth_Words(grid.spacing_z);
}

/// Puts together what a view shows.
class View_Content {
 public:
  View_Content(const Results& own, const Results* other, const Map_View& view)
      : own_(own), other_(other), view_(view), other_view_(view) {}

  Map_Content Content() {
    content_.quantity = view_.kind == Map_Kind::thickness ? "Thickness" : "Concentration";
    content_.lines = view_.lines;
    content_.grid = view_.grid;
    content_.section = view_.section;
    if (Maps_Of(own_, view_.kind).empty() || !Is_Known(own_, view_.species)) {
      content_.nothing = view_.kind == Map_Kind::thickness
                             ? "The outputs hold no maps of the deposit."
                             : "The outputs hold no maps of concentrations.";
      return content_;
    }
    content_.unit = view_.kind == Map_Kind::thickness
                        ? "ft"
                        : own_.species[static_cast<std::size_t>(view_.species) - 1].unit;
    content_.title = Title();
    Find_Maps();
    if (content_.nothing.empty()) Fill();
    return content_;
  }

 private:
  std::string Title() const {
    std::string title =
        view_.kind == Map_Kind::thickness
            ? "Deposit of " + (view_.species == 0 ? std::string("all solids")
                                                  : Mapped_Name(own_, view_.species))
            : Mapped_Name(own_, view_.species) + " at " + Depth_Words(view_.depth);
    title += view_.largest && view_.kind == Map_Kind::concentration ? ", largest over time"
                                                                    : ", " + Time_Words(view_.time);
    if (other_ == nullptr) return title;
    const auto [name, other_name] = Project_Names(own_, *other_);
    if (view_.side == Map_Side::own) return name + ": " + title;
    if (view_.side == Map_Side::other) return other_name + ": " + title;
    return name + " less " + other_name + ": " + title;
  }

  void Find_Maps() {
    map_ = Find(own_, view_);
    if (other_ != nullptr) {
      const auto number = Number_In(*other_, own_, view_.species);
      if (number) {
        in_other_ = true;
        other_view_.species = *number;
        other_map_ = Find(*other_, other_view_);
      }
    }
    const bool needs_own = view_.side != Map_Side::other;
    if (needs_own && map_ == nullptr) {
      content_.nothing = "The outputs hold no map for " + content_.title + ".";
    } else if (view_.side != Map_Side::own && other_map_ == nullptr) {
      content_.nothing = Missing_In_Other();
    } else if (view_.side == Map_Side::difference && !Have_Same_Grid()) {
      content_.nothing = "No difference can be shown: the grids are not alike. This one has " +
                         Grid_Words(own_.grid) + ", the other one " + Grid_Words(other_->grid) +
                         ".";
    }
  }

  // What there is none of in the other outputs, and what both have instead.
  std::string Missing_In_Other() const {
    const bool thickness = view_.kind == Map_Kind::thickness;
    const std::string name =
        view_.species == 0 ? std::string("all solids") : Mapped_Name(own_, view_.species);
    const std::string none = "The other outputs hold no ";
    std::string maps = thickness ? "maps of the deposit of " + name : "maps of " + name;
    if (!in_other_ || Mapped_Depths(*other_, view_.kind, other_view_.species).empty()) {
      return none + maps + ".";
    }
    if (!thickness) maps += " at " + Depth_Words(view_.depth);
    const auto others = Mapped_Times(*other_, view_.kind, other_view_.species, view_.depth);
    if (others.empty()) return none + maps + ".";
    if (view_.largest && !thickness) return none + maps + " with the largest values over time.";
    std::vector<double> both = Mapped_Times(own_, view_.kind, view_.species, view_.depth);
    std::erase_if(both, [&](double time) {
      return std::ranges::none_of(others,
                                  [&](double other) { return Is_Same_Written(time, other); });
    });
    return none + maps + " at " + Time_Words(view_.time) + ". " + Times_Of_Both(both, view_.time);
  }

  bool Have_Same_Grid() const {
    const Result_Grid &a = own_.grid, &b = other_->grid;
    return a.rows == b.rows && a.columns == b.columns &&
           Is_Same_Written(a.spacing_x, b.spacing_x) && Is_Same_Written(a.spacing_z, b.spacing_z);
  }

  void Fill() {
    const Results& shown = view_.side == Map_Side::other ? *other_ : own_;
    content_.site = shown.site;
    content_.mixing_zone = shown.mixing_zone;
    content_.zid = shown.zid;
    content_.disposal = shown.disposal;
    if (view_.side == Map_Side::difference) {
      content_.quantity = view_.kind == Map_Kind::thickness ? "Difference in thickness"
                                                            : "Difference in concentration";
      content_.cells = Difference(own_, *map_, *other_, *other_map_);
      const double largest = view_.same_scale ? Largest_Difference() : Largest_Size(content_.cells);
      content_.scale = {Levels_For({0, largest}, view_.logarithmic), true};
      return;
    }
    const Result_Map& map = view_.side == Map_Side::other ? *other_map_ : *map_;
    content_.cells = Whole_Grid(shown.grid, map);
    content_.scale = {Levels_For(Span_Of(map), view_.logarithmic), false};
    content_.logarithmic = view_.logarithmic;
  }

  Span Span_Of(const Result_Map& map) const {
    std::optional<Span> span;
    if (!view_.same_scale) {
      Take_In(span, map);
      return *span;
    }
    span = Span_Of_All(own_, view_);
    const auto other = in_other_ ? Span_Of_All(*other_, other_view_) : std::nullopt;
    if (!span || !other) return span ? *span : other.value_or(Span{});
    return {std::min(span->base, other->base), std::max(span->largest, other->largest)};
  }

  double Largest_Difference() const {
    if (view_.largest) return Largest_Size(content_.cells);
    double largest = 0;
    Map_View at = view_, other_at = other_view_;
    for (const double time : Mapped_Times(own_, view_.kind, view_.species, view_.depth)) {
      at.time = other_at.time = time;
      const Result_Map *one = Find(own_, at), *other = Find(*other_, other_at);
      if (one == nullptr || other == nullptr) continue;
      largest =
          Larger_Difference(largest, Whole_Grid(own_.grid, *one), Whole_Grid(other_->grid, *other));
    }
    return largest;
  }

  const Results& own_;
  const Results* other_;
  const Map_View& view_;
  Map_View other_view_;
  bool in_other_ = false;  // the other has the species
  const Result_Map *map_ = nullptr, *other_map_ = nullptr;
  Map_Content content_;
};

}  // namespace

std::vector<int> Mapped_Species(const Results& results, Map_Kind kind) {
  std::vector<int> species;
  for (const Result_Map& map : Maps_Of(results, kind)) {
    if (Is_Known(results, map.species)) species.push_back(map.species);
  }
  std::ranges::sort(species);
  species.erase(std::unique(species.begin(), species.end()), species.end());
  return species;
}

std::vector<double> Mapped_Depths(const Results& results, Map_Kind kind, int species) {
  std::vector<double> depths;
  for (const Result_Map& map : Maps_Of(results, kind)) {
    if (map.species == species) Insert(depths, kind == Map_Kind::thickness ? 0 : map.depth);
  }
  std::ranges::sort(depths);
  return depths;
}

std::vector<double> Mapped_Times(const Results& results, Map_Kind kind, int species, double depth) {
  std::vector<double> times;
  for (const Result_Map& map : Maps_Of(results, kind)) {
    if (map.species != species) continue;
    if (kind == Map_Kind::thickness || Is_Same_Written(map.depth, depth)) Insert(times, map.time);
  }
  std::ranges::sort(times);
  return times;
}

bool Has_Largest(const Results& results, int species, double depth) {
  Map_View view;
  view.species = species;
  view.depth = depth;
  view.largest = true;
  return Find(results, view) != nullptr;
}

const Result_Map* Own_Map(const Results& results, const Map_View& view) {
  return Find(results, view);
}

std::string Mapped_Name(const Results& results, int species) {
  if (species == 0) return "All solids";
  return results.species[static_cast<std::size_t>(species) - 1].name;
}

Map_View Nearest_View(const Results& results, Map_View view) {
  const std::vector<int> species = Mapped_Species(results, view.kind);
  if (species.empty()) return view;
  if (std::ranges::find(species, view.species) == species.end()) view.species = species.front();
  view.depth = Nearest(Mapped_Depths(results, view.kind, view.species), view.depth);
  view.time = Nearest(Mapped_Times(results, view.kind, view.species, view.depth), view.time);
  if (view.kind == Map_Kind::thickness || !Has_Largest(results, view.species, view.depth)) {
    view.largest = false;
  }
  return view;
}

Map_Content Content_Of(const Results& own, const Results* other, const Map_View& view) {
  return View_Content(own, other, view).Content();
}

std::string Map_Numbers(const Map_Drawing& drawing) {
  const Map_Content& content = drawing.content;
  if (!content.nothing.empty()) return {};
  const std::string value = content.quantity + " (" + content.unit + ")";
  const auto place = [](double feet) { return Csv_Number(feet, kPlaceDigits); };
  std::string text = Csv_Line({"X (ft)", "Z (ft)", value});
  const Cell_Values& cells = content.cells;
  for (int row = 1; row <= cells.rows; ++row) {
    for (int column = 1; column <= cells.columns; ++column) {
      const Result_Point centre = Centre_Of(cells, {row, column});
      text += Csv_Line({place(centre.x), place(centre.z), Csv_Number(cells.At(row, column))});
    }
  }
  if (!drawing.section) return text;
  text += "\r\n" + Csv_Line({"Distance (ft)", "X (ft)", "Z (ft)", value});
  for (const Section_Sample& sample : drawing.section->samples) {
    text += Csv_Line({place(sample.distance), place(sample.place.x), place(sample.place.z),
                      Csv_Number(sample.value, kMapDigits)});
  }
  return text;
}

}  // namespace barvon
