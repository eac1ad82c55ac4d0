#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/analysis_choices.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/velocity_types.h"
#include "params/site_plan.h"
#include "pictures/drawings/density_drawing.h"
#include "pictures/drawings/depth_drawing.h"
#include "pictures/drawings/grid_shapes.h"
#include "pictures/drawings/profile_drawing.h"
#include "pictures/drawings/site_plan_drawing.h"
#include "pictures/drawings/tidal_drawing.h"
#include "pictures/drawings/tidal_shapes.h"
#include "pictures/drawings/velocity_drawing.h"
#include "pictures/shapes/lettering.h"
#include "report/report_numbers.h"
#include "report/report_sections.h"
#include "site/density_table.h"
#include "site/depth_grid.h"
#include "site/site_fields.h"
#include "site/velocity_data.h"
#include "site/velocity_fields.h"
#include "site/velocity_tables.h"

namespace barvon {
namespace {

bool Has_Variable_Depth(const ProjectRecord& record) { return record.ConstantDepthFlag == 0; }

int Points(std::int16_t count) { return std::clamp<int>(count, 0, kMaxGridPoints); }

std::vector<double> Values_Of(const Spreadsheet_Table& table) {
  std::vector<double> values;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    for (int col = 1; col <= table.MaxCol(); ++col) values.push_back(table.NumberRC(row, col));
  }
  return values;
}

/// The depths as their screen shows them; no rows where there can be no grid.
void Fill_Depths(const ProjectRecord& record, Spreadsheet_Table& table) {
  const Depth_Grid_Size size{Points(record.NMAX0), Points(record.MMAX0)};
  table.MaxRow(0);
  if (size.columns > 0 && size.rows > 0) ShowDepthGrid(size, false, record, table);
}

void Fill_Field(const ProjectRecord& record, const Grid& field, Spreadsheet_Table& table) {
  table.MaxRow(0);
  const int rows = Points(record.MMAX0), columns = Points(record.NMAX0);
  if (rows > 0 && columns > 0) Fill_Field_Table(field, rows, columns, table);
}

double Water_Depth(const ProjectRecord& record) {
  return Has_Variable_Depth(record) ? MaxGridDepth(record) : record.DEPC0;
}

Shape_List With_Note(Shape_List picture, const std::string& note) {
  if (!picture.shapes.empty()) Add_Note(picture, note, kReportCanvas.text_size);
  return picture;
}

/// How many columns of such texts go on a page.
int Columns_On_A_Page(const std::vector<std::string>& texts) {
  std::size_t longest = 0;
  for (const std::string& text : texts) longest = std::max(longest, text.size());
  if (longest <= 6) return 16;
  if (longest <= 9) return 12;
  return longest <= 14 ? 8 : 4;
}

/// A grid in blocks of columns that are as wide as a page. All of its numbers have equally many
/// decimals.
void Put_Grid(Report_Maker& report, const std::string& what, const Spreadsheet_Table& table) {
  if (table.MaxRow() < 1) return;
  const std::vector<std::string> texts = Column_Texts(Values_Of(table));
  const int columns = Columns_On_A_Page(texts);
  report.document.parts.emplace_back(Report_Break{});
  report.Heading(1, what);
  for (int first = 1; first <= table.MaxCol(); first += columns) {
    const int last = std::min(first + columns - 1, table.MaxCol());
    Report_Table block{Table_Kind::grid,
                       "Columns " + std::to_string(first) + " to " + std::to_string(last) + " of " +
                           std::to_string(table.MaxCol()),
                       {{}},
                       {}};
    for (int col = first; col <= last; ++col) block.columns.push_back({table.ColText(col), true});
    for (int row = 1; row <= table.MaxRow(); ++row) {
      Report_Row line{{table.RowText(row)}};
      for (int col = first; col <= last; ++col) {
        line.cells.push_back(texts[static_cast<std::size_t>((row - 1) * table.MaxCol() + col - 1)]);
      }
      block.rows.push_back(std::move(line));
    }
    report.Table(std::move(block));
  }
}

void Report_Single(Report_Maker& report) {
  report.Fields(kAverageFields);
  if (!Has_Vessel(report.record)) {
    report.Paragraph("The model input of a pipeline has no velocities of this type.");
  }
  report.Yes_Or_No(kLogarithmicCaption, report.record.VelocityProfileType == kLogarithmicVelocity);
}

void Report_Two_Points(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  Spreadsheet_Table table(kBookNumbers);
  Fill_Point_Table(ShowVelocityData(record), table);
  report.Table("Depths in ft, velocities in ft/sec", table);
  const Profile_Drawing drawing = Draw_Profile(
      {Profile_Point{record.VelXDepth1, record.VelX1, record.VelZDepth1, record.VelZ1},
       Profile_Point{record.VelXDepth2, record.VelX2, record.VelZDepth2, record.VelZ2}});
  report.Picture(With_Note(Profile_Shapes(drawing, kReportCanvas), drawing.note));
}

void Report_Field(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  Spreadsheet_Table x(kBookNumbers), z(kBookNumbers);
  Fill_Field(record, record.VelocityFieldX, x);
  Fill_Field(record, record.VelocityFieldZ, z);
  report.Paragraph("The velocities at all grid points are at the end of the report.");
  const Velocity_Drawing drawing =
      Draw_Velocities({x.MaxRow(), x.MaxCol(), Values_Of(x), Values_Of(z), record.DX0, record.DZ0});
  report.Picture(Velocity_Shapes(drawing, kReportMap));
}

void Report_Tide(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  if (!Has_Vessel(record)) {
    return report.Paragraph("The model input of a pipeline has no velocities of this type.");
  }
  report.Fields(kUnsteadyFields);
  Tidal_Pattern pattern;
  for (int row = 1; row <= kTidalRows; ++row) {
    pattern.x.push_back(Widen(record.TidalVelX[static_cast<std::size_t>(row)]));
    pattern.z.push_back(Widen(record.TidalVelZ[static_cast<std::size_t>(row)]));
  }
  pattern.start = Widen(record.TidalStartTime);
  pattern.duration = Hours_Of_Simulation(record);
  pattern.average_x = Widen(record.TidalAvgVelX);
  pattern.average_z = Widen(record.TidalAvgVelZ);
  report.Picture(Tidal_Shapes(Draw_Tide(pattern), kReportCanvas));
  Spreadsheet_Table table(kBookNumbers);
  Fill_Tidal_Table(ShowVelocityData(record), table);
  report.Table("", table);
}

}  // namespace

void Report_Site(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  report.Heading(1, "Site Description");
  for (const Field_Row& row : Site_Fields()) {
    // The count of density points is with the densities.
    if (row.control != Control_Name{"Text1", kDensityPoints}) {
      report.Field(Site_Fields(), row.control);
    }
    if (row.control == Control_Name{"Text1", kConstantDepth}) {
      report.Yes_Or_No(kVariableDepthCaption, Has_Variable_Depth(record));
    }
  }
  report.Shown_Of(Points(record.NMAX0), record.NMAX0);
  report.Shown_Of(Points(record.MMAX0), record.MMAX0);
  const Site_Plan site = Plan_Of_Site(record);
  const Plan plan = Draw_Site(site);
  report.Picture(With_Note(Plan_Shapes(plan, kReportMap), plan.note));
  if (site.disposal_point) {
    report.Paragraph(Has_Vessel(record)
                         ? "The red point is the disposal point; the outline at it is the vessel."
                         : "The red point is the disposal point.");
  }
  if (!Has_Variable_Depth(record)) return;
  Spreadsheet_Table depths(kBookNumbers);
  Fill_Depths(record, depths);
  report.Heading(2, "Depth Grid");
  report.Paragraph("The depths at all grid points are at the end of the report.");
  report.Paragraph(Depth_Grid_Remark({}, depths));
  report.Picture(
      Depth_Shapes(Draw_Depths({depths.MaxRow(), depths.MaxCol(), Values_Of(depths)}), kReportMap));
}

void Report_Densities(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const bool computed = record.DensityComputeFlag != 0;
  report.Heading(1, "Water Density Profile");
  report.Field(Site_Fields(), {"Text1", kDensityPoints});
  report.Yes_Or_No(kComputesDensityCaption, computed);
  const int points = std::clamp<int>(record.NROA0, 0, kMaxDensityPoints);
  Spreadsheet_Table table(kBookNumbers);
  Lay_Out_Density_Table(computed, table);
  table.MaxRow(points);
  Fill_Density_Table(record, points, computed, table);
  report.Shown_Of(points, record.NROA0);
  report.Table("", table);
  std::vector<Density_Point> profile;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(points); ++i) {
    profile.push_back({record.DensityDepths[i], record.Densities[i]});
  }
  const Density_Drawing drawing = Draw_Density(profile, Water_Depth(record));
  if (Has_Variable_Depth(record)) {
    report.Paragraph("The bottom in the picture is that of the deepest grid point.");
  }
  report.Picture(With_Note(Density_Shapes(drawing, kReportCanvas), drawing.note));
}

void Report_Velocities(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const Velocity_Form form = Form_Of_Type(record.VelocityProfileType);
  report.Heading(1, "Velocity Data");
  report.Words(kVelocityTypeFrame, form == kNoForm ? "None" : Name_Of_Form(form));
  switch (form) {
    case kSingleForm:
      return Report_Single(report);
    case kTwoPointForm:
      return Report_Two_Points(report);
    case kFieldForm:
      return Report_Field(report);
    case kUnsteadyForm:
      return Report_Tide(report);
    case kNoForm:
      break;
  }
}

void Report_Grids(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  if (Has_Variable_Depth(record)) {
    Spreadsheet_Table depths(kBookNumbers);
    Fill_Depths(record, depths);
    Put_Grid(report, "Depths at the Grid Points (ft)", depths);
  }
  if (record.VelocityProfileType != kVelocityField) return;
  for (const int direction : {kAlongX, kAlongZ}) {
    Spreadsheet_Table field(kBookNumbers);
    Fill_Field(record, direction == kAlongX ? record.VelocityFieldX : record.VelocityFieldZ, field);
    Put_Grid(report,
             std::string("Velocities in the ") + kAxes[direction] +
                 "-Direction at the Grid Points (ft/sec)",
             field);
  }
}

}  // namespace barvon
