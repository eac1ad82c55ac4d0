#pragma once

#include <optional>

#include "core/project_record.h"

namespace barvon {

/// A screen writes a value before its OK, and keeps what Cancel has to bring back.
template <class Value>
void Write_At_Once(Value value, std::optional<Value>& former, Value& field) {
  if (!former) former = field;
  field = value;
}

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
template <class Value>
void Put_Back(const std::optional<Value>& former, Value& field, ProjectRecord& record) {
  if (former) Put_Back(*former, field, record);
}

}  // namespace barvon
