#pragma once

#include "core/project_record.h"

namespace barvon {

/// What stands for a dilution where no amount of ambient water helps.
inline constexpr double kCannotBeMet = 9999999;

inline constexpr char kNoRemark[] = "       ";
inline constexpr char kCriterionIsZero[] = "C = 0.0";
inline constexpr char kCriterionIsBelow[] =
    "C < B";  // also for a criterion equal to the background

/// The dilution in parts of ambient water that one part of the material of row `i` (1 to 500) needs
/// to meet its criterion C beside the background B, from a concentration W in the water: 0 while W
/// does not exceed C, otherwise (W - C) / (C - B), the balance of a mixture of both waters, or
/// kCannotBeMet. Stored in the record with the remark, and returned.

/// W is DiluteSolidsConc (g/L) x DiluteBulk (ug/kg) / 1000, in ug/L, and stored too.
double Calc_Bulk(ProjectRecord& record, int i);
/// W is DiluteElutriate, in ug/L.
double Calc_Elut(ProjectRecord& record, int i);

/// Stores the solids concentration (g/L) and computes all rows of the list. False, and the user is
/// told, when it is not above 0: the rows are then as they were.
bool Compute_Dilutions(double solids, ProjectRecord& record);

/// Whether the stored results of the row are those of its values and of DiluteSolidsConc.
bool Bulk_Is_Computed(const ProjectRecord& record, int i);
bool Elutriate_Is_Computed(const ProjectRecord& record, int i);
/// The same for every row of the list, and both.
bool List_Is_Computed(const ProjectRecord& record);

}  // namespace barvon
