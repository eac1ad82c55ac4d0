#include "database/record_layout.h"

#include "core/project_record.h"
#include "core/text_tools.h"
#include "database/column_lines.h"
#include "database/data_columns.h"
#include "database/data_files.h"
#include "database/index_files.h"

namespace barvon {
namespace {

using namespace data_columns;

constexpr Line_Columns kSiteFirst[] = {kCode, kPoints};
constexpr Line_Columns kGrid[] = {kGridZ, kGridX};
constexpr Line_Columns kSpacings[] = {kSpacingZ, kSpacingX};
constexpr Line_Columns kSlopes[] = {kSlopeX, kSlopeZ};
constexpr Line_Columns kProfile[] = {kProfileDepth, kProfileDensity};
constexpr Line_Columns kOneField[] = {kField};
constexpr Line_Columns kOnlyCode[] = {kCode};
constexpr Line_Columns kOnlyMonth[] = {kMonth};
constexpr Line_Columns kPoint[] = {kXDepth, kXSpeed, kZDepth, kZSpeed};
constexpr Line_Columns kMaterialFirst[] = {kCode, kSolids};
constexpr Line_Columns kOnlyVolume[] = {kVolume};
constexpr Line_Columns kSolid[] = {kGravity, kFraction, kFall, kVoid, kShear};
constexpr Line_Columns kMoistureLine[] = {kIsGiven, kMoisture};
constexpr Line_Columns kDensityLine[] = {kIsGiven, kDensity};
constexpr Line_Columns kOpening[] = {kOpeningX, kOpeningZ};

using Columns = std::span<const Line_Columns>;

bool Is_Blank(const std::string& line, Line_Columns columns) {
  return Trimmed(Text_In(line, columns)).empty();
}

int Site_Lines(std::span<const std::string> lines, std::size_t at) {
  const int points = Points_In(lines[at]);
  return points >= 0 && points <= kMaxDensityPoints ? Site_Lines_Behind(points) : -1;
}

Columns Site_Columns(int line, int lines_behind) {
  switch (line) {
    case 0:
      return kSiteFirst;
    case 1:
      return kGrid;
    case 2:
      return kSpacings;
    case 5:
    case 7:
      return {};
    case 6:
      return kSlopes;
    default:
      return line < 5 || line == lines_behind ? Columns(kOneField) : Columns(kProfile);
  }
}

bool Is_Site_First(const std::string& line) {
  return Leading_Numbers(line, 3).size() == 2 && Is_In_Columns(line, kSiteFirst) &&
         !Is_Blank(line, kPoints) && Is_Blank(line, {7, line.size() + 7});
}

int Velocity_Lines(std::span<const std::string>, std::size_t) { return kVelocityLinesBehind; }

Columns Velocity_Columns(int line, int) {
  if (line == 0) return kOnlyCode;
  return line % 3 == 1 ? Columns(kOnlyMonth) : Columns(kPoint);
}

bool Is_Velocity_First(const std::string& line) {
  return Is_Blank(line, {kCode.last + 1, line.size() + kCode.last + 1});
}

int Material_Lines(std::span<const std::string> lines, std::size_t at) {
  const int solids = Solids_In(lines[at]);
  return solids >= 0 && solids <= kMaxSolids ? Material_Lines_Behind(solids) : -1;
}

Columns Material_Columns(int line, int lines_behind) {
  if (line == 0) return kMaterialFirst;
  if (line == 1) return kOnlyVolume;
  if (line == lines_behind) return kDensityLine;
  return line == lines_behind - 1 ? Columns(kMoistureLine) : Columns(kSolid);
}

bool Is_Material_First(const std::string& line) {
  return Is_Blank(line, {5, 40}) && !Is_Blank(line, kSolids);
}

int Vessel_Lines(std::span<const std::string> lines, std::size_t at) {
  constexpr std::size_t kCountLine = 8;
  if (at + kCountLine >= lines.size()) return Vessel_Lines_Behind(0);
  const double openings = Number_In(lines[at + kCountLine], kField);
  return openings >= 0 && openings <= kMaxLayers ? Vessel_Lines_Behind(static_cast<int>(openings))
                                                 : -1;
}

Columns Vessel_Columns(int line, int lines_behind) {
  if (line == 0) return kOnlyCode;
  if (line < 9 || line > lines_behind - 3) return kOneField;
  return line == lines_behind - 3 ? Columns() : Columns(kOpening);
}

bool Can_Be_Any_Line(const std::string&) { return false; }

}  // namespace

const Data_Layout kSiteLayout{kSiteFile, kSiteList, Site_Lines, Site_Columns, Is_Site_First};
const Data_Layout kVelocityLayout{kVelocityFile, kSiteList, Velocity_Lines, Velocity_Columns,
                                  Is_Velocity_First};
const Data_Layout kMaterialLayout{kMaterialFile, kMaterialList, Material_Lines, Material_Columns,
                                  Is_Material_First};
const Data_Layout kVesselLayout{kVesselFile, kVesselList, Vessel_Lines, Vessel_Columns,
                                Can_Be_Any_Line};

}  // namespace barvon
