#include "pictures/drawings/site_plan_drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "pictures/drawings/velocity_drawing.h"
#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr double kMargin = 0.5;        // of the larger side, around the grid
constexpr double kCurrentPart = 0.16;  // of the smaller side: the current's arrow is not to scale
constexpr double kCurrentInset = 0.04;
constexpr double kNarrow = 0.5;      // across by down: less leaves no room for words
constexpr double kNameRise = 0.015;  // of the larger side, above the edge
constexpr double kPointRadius = 4;   // pixels
constexpr Colour kVesselInk{64, 64, 64}, kVesselFill{206, 210, 216};
constexpr Colour kBoundaryInk{0, 112, 74}, kZidInk{134, 38, 140};

bool Is_Length(double feet) { return Can_Be_Drawn(feet) && feet > 0; }
bool Has_Place(const Feet_Point& point) { return Can_Be_Drawn(point.x) && Can_Be_Drawn(point.z); }

bool Holds(const Feet_Area& area, const Feet_Point& point) {
  return point.x >= area.top && point.x <= area.bottom && point.z >= area.left &&
         point.z <= area.right;
}

bool Holds(const Feet_Area& area, const Feet_Area& part) {
  return Holds(area, Feet_Point{part.top, part.left}) &&
         Holds(area, Feet_Point{part.bottom, part.right});
}

std::string Words_Of(const Feet_Area& area) {
  return "X " + Short_Text(area.top) + " to " + Short_Text(area.bottom) + " ft, Z " +
         Short_Text(area.left) + " to " + Short_Text(area.right) + " ft";
}

std::vector<Place> Outline(const Feet_Area& area) {
  return Rectangle(On_Plan({area.top, area.left}), On_Plan({area.bottom, area.right}));
}

/// To a hundredth of the speed: it is a mean.
std::string Speed_Text(double speed) {
  const double grain = Round_Value_Below(speed / 100);
  return Short_Text(grain > 0 ? std::round(speed / grain) * grain : speed) + " ft/s";
}

std::string Current_Text(const Mean_Current& current) {
  return Speed_Text(std::hypot(current.x, current.z)) + " " + Heading_Text(current.x, current.z);
}

/// Puts the plan together, thing by thing.
class Drawn_Site {
 public:
  explicit Drawn_Site(const Site_Plan& site)
      : site_(site), grid_{0, 0, site.length_x, site.length_z} {
    const double margin = kMargin * std::max(site.length_x, site.length_z);
    limit_ = {-margin, -margin, grid_.bottom + margin, grid_.right + margin};
    plan_.area = grid_;
  }

  Plan Draw() {
    plan_.title = "Site plan";
    plan_.description = "Grid of X " + Short_Text(site_.length_x) + " ft by Z " +
                        Short_Text(site_.length_z) + " ft.";
    plan_.shapes.push_back(Polygon_Shape{Outline(grid_), kWhite, Stroke{kAxisInk, 1.5}});
    Add_Boundaries();
    Add_Hole();
    Add_Vessel();
    Add_Course();
    Add_Point();
    Add_Current();
    plan_.note = note_;
    if (!note_.empty()) plan_.description += " " + note_;
    return plan_;
  }

 private:
  void Say(const std::string& words) { plan_.description += " " + words; }
  void Note(const std::string& words) { note_ += (note_.empty() ? "" : " ") + words; }

  void Take_In(const Feet_Point& point) {
    Feet_Area& area = plan_.area;
    area = {std::min(area.top, point.x), std::min(area.left, point.z),
            std::max(area.bottom, point.x), std::max(area.right, point.z)};
  }

  /// Draws an area as far as it is shown, its name in a lower corner or beside that. Tells one that
  /// has no extent or leaves the grid.
  void Add_Area(const Feet_Area& area, const std::string& name, const std::string& label,
                const Polygon_Shape& look, Anchor anchor, bool beside = false) {
    if (!Has_Place({area.top, area.left}) || !Has_Place({area.bottom, area.right})) {
      return Note(name + " has no place.");
    }
    Say(name + ": " + Words_Of(area) + ".");
    if (!(area.bottom > area.top) || !(area.right > area.left)) {
      return Note("The corners of the " + label + " do not make an area.");
    }
    if (!Holds(grid_, area)) Note(name + " reaches beyond the grid.");
    const Feet_Area shown = {std::max(area.top, limit_.top), std::max(area.left, limit_.left),
                             std::min(area.bottom, limit_.bottom),
                             std::min(area.right, limit_.right)};
    if (!(shown.bottom > shown.top) || !(shown.right > shown.left)) return;
    Take_In({shown.top, shown.left});
    Take_In({shown.bottom, shown.right});
    Polygon_Shape polygon = look;
    polygon.points = Outline(shown);
    const Colour ink = look.stroke->colour;
    plan_.shapes.push_back(std::move(polygon));
    const double side = (anchor == Anchor::start) != beside ? shown.left : shown.right;
    const double rise = kNameRise * std::max(grid_.bottom, grid_.right);
    plan_.shapes.push_back(
        Text_Shape{On_Plan({shown.bottom - rise, side}), " " + name + " ", 1, ink, anchor});
  }

  void Add_Boundaries() {
    if (site_.boundary) {
      std::string label = site_.boundary_name;
      if (!label.empty() && label.front() >= 'A' && label.front() <= 'Z')
        label.front() += 'a' - 'A';
      Add_Area(*site_.boundary, site_.boundary_name, label,
               {{}, {}, Stroke{kBoundaryInk, 1.5, Dash::dashed}}, Anchor::start);
    }
    if (site_.zid) {
      Add_Area(*site_.zid, "ZID", "ZID", {{}, {}, Stroke{kZidInk, 1.5, Dash::dotted}}, Anchor::end);
    }
  }

  bool Has_Point() const { return site_.disposal_point && Has_Place(*site_.disposal_point); }

  void Add_Hole() {
    if (!Has_Point() || !Is_Length(site_.hole_x) || !Is_Length(site_.hole_z)) return;
    const Feet_Point at = *site_.disposal_point;
    const double down = site_.hole_x / 2, right = site_.hole_z / 2;
    Add_Area({at.x - down, at.z - right, at.x + down, at.z + right}, "Depression", "depression",
             {{}, kGroundFill, Stroke{kGroundInk, 1.5}},
             // Beside it: a hole is small.
             at.z > grid_.right / 2 ? Anchor::end : Anchor::start, true);
  }

  /// Where the vessel heads to, as a direction of length 1: along its first leg that moves, else
  /// along X.
  Feet_Point Heading() const {
    for (const Vessel_Leg& leg : site_.course) {
      const double speed = std::hypot(leg.x, leg.z);
      if (Can_Be_Drawn(speed) && speed > 0) return {leg.x / speed, leg.z / speed};
    }
    return {1, 0};
  }

  void Add_Vessel() {
    if (!Has_Point() || !Is_Length(site_.vessel_length) || !Is_Length(site_.vessel_width)) return;
    const Feet_Point at = *site_.disposal_point, ahead = Heading();
    const double along = site_.vessel_length / 2, across = site_.vessel_width / 2;
    const auto corner = [&](double forward, double aside) {
      return Feet_Point{at.x + forward * along * ahead.x - aside * across * ahead.z,
                        at.z + forward * along * ahead.z + aside * across * ahead.x};
    };
    const Feet_Point corners[] = {corner(1, 1), corner(1, -1), corner(-1, -1), corner(-1, 1)};
    Polygon_Shape hull{{}, kVesselFill, Stroke{kVesselInk, 1}};
    bool in_grid = true;
    for (const Feet_Point& one : corners) {
      if (!Holds(limit_, one)) return;
      in_grid = in_grid && Holds(grid_, one);
      hull.points.push_back(On_Plan(one));
    }
    if (!in_grid && Holds(grid_, at)) Note("The vessel reaches beyond the grid.");
    for (const Feet_Point& one : corners) Take_In(one);
    plan_.shapes.push_back(std::move(hull));
  }

  /// The end of a leg, cut where it leaves what is shown.
  Feet_Point Cut(const Feet_Point& from, const Feet_Point& to) const {
    double part = 1;
    const auto hold = [&](double start, double end, double low, double high) {
      if (end < low) part = std::min(part, (low - start) / (end - start));
      if (end > high) part = std::min(part, (high - start) / (end - start));
    };
    hold(from.x, to.x, limit_.top, limit_.bottom);
    hold(from.z, to.z, limit_.left, limit_.right);
    return {from.x + part * (to.x - from.x), from.z + part * (to.z - from.z)};
  }

  void Add_Course() {
    if (!Has_Point() || !Holds(limit_, *site_.disposal_point)) return;
    Feet_Point at = *site_.disposal_point;
    Plan_Arrow course{at, at, {kVesselInk, 1.5}};
    bool leaves_grid = false;
    for (const Vessel_Leg& leg : site_.course) {
      const Feet_Point to = {at.x + leg.x * leg.seconds, at.z + leg.z * leg.seconds};
      if (!(leg.seconds > 0) || !Has_Place(to) || to == at) continue;
      const Feet_Point shown = Cut(at, to);
      Take_In(shown);
      if (!(course.tip == course.tail) || !course.bends.empty()) course.bends.push_back(course.tip);
      course.tip = shown;
      leaves_grid = leaves_grid || !Holds(grid_, to);
      at = to;
      if (!(shown == to)) break;
    }
    if (at == *site_.disposal_point && course.bends.empty()) return;
    plan_.arrows.push_back(std::move(course));
    Say("While it empties, the vessel moves to " + Words_Of(at) + ".");
    if (leaves_grid && Holds(grid_, *site_.disposal_point))
      Note("The vessel's course leaves the grid.");
  }

  void Add_Point() {
    if (!site_.disposal_point) return;
    if (!Has_Point()) return Note("The disposal point has no place.");
    const Feet_Point at = *site_.disposal_point;
    Say("Disposal point: " + Words_Of(at) + ".");
    if (!Holds(grid_, at)) Note("The disposal point is outside of the grid.");
    if (!Holds(limit_, at)) return;
    Take_In(at);
    plan_.marks.push_back(Circle_Shape{On_Plan(at), kPointRadius, kWarnInk, Stroke{kWhite, 1}});
  }

  // In the corner of the grid that is farthest from the vessel.
  void Add_Current() {
    if (!site_.current) return;
    const Mean_Current& current = *site_.current;
    const double speed = std::hypot(current.x, current.z);
    if (!Can_Be_Drawn(speed)) return Note("The mean current cannot be drawn.");
    if (!(speed > 0)) return Say("No mean current.");
    Say("Mean current: " + Current_Text(current) + ".");
    const Feet_Point vessel = Has_Point() ? *site_.disposal_point : Feet_Point{};
    const double side = std::min(grid_.bottom, grid_.right);
    const double half = kCurrentPart * side / 2, inset = half + kCurrentInset * side;
    const Feet_Point at = {vessel.x > grid_.bottom / 2 ? inset : grid_.bottom - inset,
                           vessel.z > grid_.right / 2 ? inset : grid_.right - inset};
    const double down = half * current.x / speed, right = half * current.z / speed;
    plan_.arrows.push_back(
        {{at.x - down, at.z - right}, {at.x + down, at.z + right}, {kWaterInk, 2}});
    const bool at_left = at.z < grid_.right / 2;
    const bool outside = grid_.right < kNarrow * grid_.bottom;
    double beside = at_left ? at.z + half : at.z - half;
    if (outside) beside = grid_.right;
    plan_.marks.push_back(Text_Shape{On_Plan({at.x, beside}), " Current " + Speed_Text(speed) + " ",
                                     1, kWaterInk,
                                     at_left || outside ? Anchor::start : Anchor::end});
  }

  const Site_Plan& site_;
  Feet_Area grid_, limit_;
  Plan plan_;
  std::string note_;
};

}  // namespace

Plan Draw_Site(const Site_Plan& site) {
  if (Is_Length(site.length_x) && Is_Length(site.length_z)) return Drawn_Site(site).Draw();
  Plan plan;
  plan.title = "Site plan";
  plan.note = plan.description = "No grid yet: its points and spacings are disposal site data.";
  return plan;
}

}  // namespace barvon
