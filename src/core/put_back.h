#pragma once

#include "core/project_record.h"

namespace barvon {

/// Cancel has changed the record. Where the project was saved while the screen was open, with the
/// values that go now, it has to be saved again.
inline void Left_Behind_The_File(ProjectRecord& record) {
  if (record.SavedUnderScreens != kFalse) record.DataSaved = kFalse;
}

/// Cancel gives a field of the record its former value.
template <class Value>
void Put_Back(const Value& former, Value& field, ProjectRecord& record) {
  if (field == former) return;
  field = former;
  Left_Behind_The_File(record);
}

}  // namespace barvon
