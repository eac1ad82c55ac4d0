#pragma once

#include <optional>

#include "core/project_record.h"

namespace barvon {

/// What the choices of the main screen do to the record. An index of -1 stands for a group in
/// which nothing is chosen.

/// KEY4 for a type of analysis, SSOption1(0) to (2), and a method of disposal, SSOption2(0) or
/// (1). Nothing when either group has no choice: KEY4 then keeps its value.
std::optional<std::int16_t> KEY4_Value(int type, int method);

/// A click on a type of analysis: AnalysisType, KEY4, and FileKind becomes a project's.
void Choose_Analysis_Type(int type, int method, ProjectRecord& record);

/// A click on a method of disposal: DisposalMethod, KEY4, KEY1 1, PreviousDisposalMethod.
void Choose_Disposal_Method(int type, int method, ProjectRecord& record);

/// The option of the group that shows KEY4: 0 to 2, or -1 for a KEY4 that chooses none.
int Type_Option(std::int16_t key4);
/// The option that shows DisposalMethod: 0 hopper, 1 barge, -1 for any other.
int Method_Option(std::int16_t disposal_method);

/// False, after a warning, while AnalysisType is negative.
bool Check_Eval(const ProjectRecord& record);

}  // namespace barvon
