#include "database/data_files.h"

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <set>

#include "core/number_text.h"
#include "core/text_tools.h"
#include "core/velocity_types.h"
#include "database/data_columns.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

using namespace data_columns;
using Whole = std::int16_t ProjectRecord::*;
using Real = double ProjectRecord::*;

std::size_t At(int index) { return static_cast<std::size_t>(index); }

/// Reads a record into a project of its own, so that nothing is stored of one that ends early or
/// does not fit. `fits_` ends with the first number that does not.
class Record_Reader {
 public:
  Record_Reader(Line_Walk& walk, const ProjectRecord& record)
      : walk_(walk), read_(std::make_unique<ProjectRecord>(record)) {}

  ProjectRecord& read() { return *read_; }
  bool Next() { return fits_ && walk_.Next(); }
  const std::string& Line() const { return walk_.Line(); }
  double Number(Line_Columns columns) const { return Number_In(Line(), columns); }

  /// A line with one number.
  bool Next_Real(Real field, Line_Columns columns = kField) {
    if (!Next()) return false;
    read().*field = Number(columns);
    return true;
  }
  bool Next_Whole(Whole field, int least, int most) {
    return Next() && Take_Whole(field, kField, least, most);
  }
  bool Take_Whole(Whole field, Line_Columns columns, int least, int most) {
    const double value = Round_Half_Even(Number(columns));
    fits_ = fits_ && value >= least && value <= most;
    if (fits_) read().*field = static_cast<std::int16_t>(value);
    return fits_;
  }

 private:
  Line_Walk& walk_;
  std::unique_ptr<ProjectRecord> read_;
  bool fits_ = true;
};

constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();
constexpr int kLeast16 = std::numeric_limits<std::int16_t>::min();

/// Walks to the record of the code. `lines_behind` gives the lines to pass for a first line.
template <class Lines_Behind>
bool Walk_To(Line_Walk& walk, double code, Lines_Behind lines_behind) {
  while (walk.Next()) {
    if (Number_In(walk.Line(), kCode) == code) return true;
    if (!walk.Skip(lines_behind(walk.Line()))) return false;
  }
  return false;
}

bool Read_Site(Record_Reader& reader) {
  ProjectRecord& site = reader.read();
  if (!reader.Take_Whole(&ProjectRecord::NROA0, kPoints, 0, kMaxDensityPoints)) return false;
  if (!reader.Next() || !reader.Take_Whole(&ProjectRecord::NMAX0, kGridZ, 0, kMaxGridPoints) ||
      !reader.Take_Whole(&ProjectRecord::MMAX0, kGridX, 0, kMaxGridPoints)) {
    return false;
  }
  if (!reader.Next_Real(&ProjectRecord::DZ0, kSpacingZ)) return false;
  site.DX0 = reader.Number(kSpacingX);
  if (!reader.Next_Real(&ProjectRecord::DEPC0) || !reader.Next_Real(&ProjectRecord::RHDA0) ||
      !reader.Next() || !reader.Next_Real(&ProjectRecord::SLOPEX0, kSlopeX)) {
    return false;
  }
  site.SLOPEZ0 = reader.Number(kSlopeZ);
  if (!reader.Next()) return false;
  for (int i = 1; i <= site.NROA0; ++i) {
    if (!reader.Next()) return false;
    site.DensityDepths[At(i)] = reader.Number(kProfileDepth);
    site.Densities[At(i)] = reader.Number(kProfileDensity);
  }
  return reader.Next_Real(&ProjectRecord::DEPTHI);
}

bool Read_Month(Record_Reader& reader) {
  ProjectRecord& velocity = reader.read();
  const auto point = [&](double& x_depth, double& x, double& z_depth, double& z) {
    if (!reader.Next()) return false;
    x_depth = reader.Number(kXDepth);
    x = reader.Number(kXSpeed);
    z_depth = reader.Number(kZDepth);
    z = reader.Number(kZSpeed);
    return true;
  };
  return point(velocity.VelXDepth1, velocity.VelX1, velocity.VelZDepth1, velocity.VelZ1) &&
         point(velocity.VelXDepth2, velocity.VelX2, velocity.VelZDepth2, velocity.VelZ2);
}

void Take_Solid(const Record_Reader& reader, int solid, ProjectRecord& material) {
  const auto flag = [](const std::string& letter) {
    return static_cast<std::int16_t>(Upper_Case(letter) == "Y" ? 1 : 0);
  };
  const std::size_t i = At(solid);
  material.SolidNames[i] = Trimmed(Text_In(reader.Line(), kName));
  material.SolidSG[i] = reader.Number(kGravity);
  material.SolidVolFraction[i] = reader.Number(kFraction);
  material.SolidFallVelocity[i] = reader.Number(kFall);
  material.SolidVoidRatio[i] = reader.Number(kVoid);
  material.SolidCriticalShear[i] = reader.Number(kShear);
  material.SolidCohesiveText[i] = Text_In(reader.Line(), kCohesive);
  material.SolidStrippedText[i] = Text_In(reader.Line(), kStripped);
  material.SolidCohesive[i] = flag(material.SolidCohesiveText[i]);
  material.SolidStripped[i] = flag(material.SolidStrippedText[i]);
}

bool Read_Material(Record_Reader& reader) {
  ProjectRecord& material = reader.read();
  if (!reader.Take_Whole(&ProjectRecord::NumSolids, kSolids, 0, kMaxSolids)) return false;
  if (!reader.Next_Real(&ProjectRecord::TotalVolume, kVolume)) return false;
  for (int i = 1; i <= material.NumSolids; ++i) {
    if (!reader.Next()) return false;
    Take_Solid(reader, i, material);
  }
  if (!reader.Next()) return false;
  material.JBFCFlag = static_cast<std::int16_t>(reader.Number(kIsGiven));  // one digit
  if (material.JBFCFlag == 1) material.MoistureContent = reader.Number(kMoisture);
  if (!reader.Next()) return false;
  if (reader.Number(kIsGiven) == 1) {
    material.SiteDensity = reader.Number(kDensity);
    material.BulkDensity = 0;
  }
  return true;
}

bool Read_Vessel(Record_Reader& reader) {
  ProjectRecord& vessel = reader.read();
  for (const Real field : {&ProjectRecord::BINL, &ProjectRecord::BINW, &ProjectRecord::DBINS,
                           &ProjectRecord::DREL1, &ProjectRecord::DREL2, &ProjectRecord::TDIS}) {
    if (!reader.Next_Real(field)) return false;
  }
  if (!reader.Next_Whole(&ProjectRecord::NBINS, kLeast16, kMost16) ||
      !reader.Next_Whole(&ProjectRecord::NOPENS, 0, kMaxLayers)) {
    return false;
  }
  for (int i = 1; i <= vessel.NOPENS; ++i) {
    if (!reader.Next()) return false;
    vessel.LayerVelX[At(i)] = reader.Number(kOpeningX);
    vessel.LayerVelZ[At(i)] = reader.Number(kOpeningZ);
  }
  return reader.Next() && reader.Next_Real(&ProjectRecord::DHOLE) &&
         reader.Next_Real(&ProjectRecord::ZHOLE) && reader.Next_Real(&ProjectRecord::XHOLE);
}

}  // namespace

int Site_Lines_Behind(int points) { return points + 8; }
int Material_Lines_Behind(int solids) { return solids + 3; }
int Vessel_Lines_Behind(int openings) { return openings + 12; }

int Points_In(const std::string& first_line) {
  return static_cast<int>(Round_Half_Even(Number_In(first_line, kPoints)));
}
int Solids_In(const std::string& first_line) {
  return static_cast<int>(Round_Half_Even(Number_In(first_line, kSolids)));
}

bool Find_Site(const std::string& folder, ProjectRecord& record) {
  Line_Walk walk(Join_Path(folder, kSiteFile));
  const auto lines_behind = [](const std::string& line) {
    return Site_Lines_Behind(Points_In(line));
  };
  if (!Walk_To(walk, record.SelectedSiteCode, lines_behind)) return false;
  Record_Reader reader(walk, record);
  if (!Read_Site(reader)) return false;
  record = reader.read();
  // What was typed for another profile would replace this one at the next OK of its screen.
  record.DensityComputeFlag = kFalse;
  record.DensitySalinities = record.DensityTemperatures = {};
  return true;
}

bool Find_Velocity(const std::string& folder, ProjectRecord& record) {
  Line_Walk walk(Join_Path(folder, kVelocityFile));
  const auto lines_behind = [](const std::string&) { return kVelocityLinesBehind; };
  if (!Walk_To(walk, record.SelectedSiteCode, lines_behind)) return false;
  for (int month = 1; month <= kMonths; ++month) {
    if (!walk.Next()) return false;
    if (Number_In(walk.Line(), kMonth) != record.SelectedMonth) {
      if (!walk.Skip(2)) return false;
      continue;
    }
    Record_Reader reader(walk, record);
    if (!Read_Month(reader)) return false;
    record = reader.read();
    record.VelocityProfileType = kTwoPointVelocity;
    record.ConstVelocityX = record.ConstVelocityZ = 0;
    return true;
  }
  return false;
}

int Months_Missing(const std::string& folder, double code) {
  Line_Walk walk(Join_Path(folder, kVelocityFile));
  std::set<int> months;
  const auto lines_behind = [](const std::string&) { return kVelocityLinesBehind; };
  if (Walk_To(walk, code, lines_behind)) {
    for (int place = 1; place <= kMonths && walk.Next(); ++place) {
      const double month = Number_In(walk.Line(), kMonth);
      if (!walk.Skip(2)) break;
      if (month >= 1 && month <= kMonths && month == Int(month)) {
        months.insert(static_cast<int>(month));
      }
    }
  }
  return kMonths - static_cast<int>(months.size());
}

bool Find_Material(const std::string& folder, ProjectRecord& record) {
  Line_Walk walk(Join_Path(folder, kMaterialFile));
  const auto lines_behind = [](const std::string& line) {
    return Material_Lines_Behind(Solids_In(line));
  };
  if (!Walk_To(walk, record.SelectedMaterialCode, lines_behind)) return false;
  Record_Reader reader(walk, record);
  if (!Read_Material(reader)) return false;
  record = reader.read();
  return true;
}

bool Find_Vessel(const std::string& folder, ProjectRecord& record) {
  Line_Walk walk(Join_Path(folder, kVesselFile));
  const auto lines_behind = [&](const std::string&) { return Vessel_Lines_Behind(record.NOPENS); };
  if (!Walk_To(walk, record.SelectedVesselCode, lines_behind)) return false;
  Record_Reader reader(walk, record);
  if (!Read_Vessel(reader)) return false;
  record = reader.read();
  return true;
}

}  // namespace barvon
