#include "dilution/dilution_rules.h"

#include <cstddef>

#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr double kGramsInKilogram = 1000;

struct Requirement {
  double dilution = 0;
  const char* remark = kNoRemark;
};

Requirement Required(double concentration, double criterion, double background) {
  if (concentration <= criterion) return {};
  if (criterion <= 0) return {kCannotBeMet, kCriterionIsZero};
  if (criterion <= background) return {kCannotBeMet, kCriterionIsBelow};
  return {(concentration - criterion) / (criterion - background), kNoRemark};
}

std::size_t At(int i) { return static_cast<std::size_t>(i); }

double Water_Concentration(const ProjectRecord& record, int i) {
  return record.DiluteSolidsConc * record.DiluteBulk[At(i)] / kGramsInKilogram;
}

Requirement Required_In_Row(double concentration, const ProjectRecord& record, int i) {
  return Required(concentration, record.DiluteCriteria[At(i)], record.DiluteBackground[At(i)]);
}

}  // namespace

double Calc_Bulk(ProjectRecord& record, int i) {
  record.DiluteBulkWaterConc[At(i)] = Water_Concentration(record, i);
  const Requirement required = Required_In_Row(record.DiluteBulkWaterConc[At(i)], record, i);
  record.DiluteBulkRemark[At(i)] = required.remark;
  return record.DiluteBulkDilution[At(i)] = required.dilution;
}

double Calc_Elut(ProjectRecord& record, int i) {
  const Requirement required = Required_In_Row(record.DiluteElutriate[At(i)], record, i);
  record.DiluteElutRemark[At(i)] = required.remark;
  return record.DiluteElutDilution[At(i)] = required.dilution;
}

bool Compute_Dilutions(double solids, ProjectRecord& record) {
  record.DiluteSolidsConc = solids;
  if (!(solids > 0)) {
    Show_Warning(
        "Provide a Solids Concentration Greater Than Zero for the Dredged Material Being "
        "Disposed.");
    return false;
  }
  for (int i = 1; i <= record.DiluteRowCount; ++i) {
    Calc_Bulk(record, i);
    Calc_Elut(record, i);
  }
  return true;
}

bool Bulk_Is_Computed(const ProjectRecord& record, int i) {
  const Requirement required = Required_In_Row(Water_Concentration(record, i), record, i);
  return record.DiluteBulkDilution[At(i)] == required.dilution &&
         record.DiluteBulkRemark[At(i)] == required.remark;
}

bool Elutriate_Is_Computed(const ProjectRecord& record, int i) {
  const Requirement required = Required_In_Row(record.DiluteElutriate[At(i)], record, i);
  return record.DiluteElutDilution[At(i)] == required.dilution &&
         record.DiluteElutRemark[At(i)] == required.remark;
}

bool List_Is_Computed(const ProjectRecord& record) {
  for (int i = 1; i <= record.DiluteRowCount; ++i) {
    if (!Bulk_Is_Computed(record, i) || !Elutriate_Is_Computed(record, i)) return false;
  }
  return true;
}

}  // namespace barvon
