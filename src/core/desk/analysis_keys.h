#pragma once

#include "core/project_record.h"

namespace barvon {

/// What showing a project does to its record, in the window and in the console program alike:
/// LegacyKeyRebuild makes KEY4 follow KEY3 and the method, AnalysisType and FileKind follow a KEY4
/// that chooses a type, KEY1 becomes 1 and PreviousDisposalMethod the method for hopper and barge,
/// SiteDensity is held to its limits, KEY2 1 becomes 2 and a negative one 0, and descent and
/// collapse clears the contaminant.
void Refresh_Record(ProjectRecord& record);

/// The part of it that concerns KEY2: 1 becomes 2, a negative one 0, and descent and collapse
/// clears the contaminant.
void Refresh_KEY2(ProjectRecord& record);

/// Refresh_Record, then the workspace shows the record.
void Show_Project(ProjectRecord& record);

/// Empties the contaminant's name and concentrations and the ZID's corners.
void Reset_WQParams(ProjectRecord& record);

}  // namespace barvon
