#pragma once

#include <cstdint>
#include <optional>

#include "core/project_record.h"

namespace barvon {

/// AnalysisType that KEY4 stands for: 1 for 1 and 2, 2 for 3 and 4, 3 for 5 and 6; 0 when KEY4
/// chooses none.
std::int16_t Analysis_Type_Of_KEY4(std::int16_t key4);

/// KEY4 that evaluation and method stand for: 1 and 2 for KEY3 0 and 1, 3 and 4 for 2 to 4, 5 and 6
/// for 5 to 7, hopper first. Nothing for any other KEY3 or method.
std::optional<std::int16_t> KEY4_Of_Evaluation(std::int16_t key3, std::int16_t disposal_method);

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
