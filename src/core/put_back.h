#pragma once

#include "core/project_record.h"

namespace barvon {

/// Cancel gives a field of the record its former value. The project may have been saved while the
/// screen was open, with the value that goes here: a record that changes has to be saved again.
template <class Value>
void Put_Back(const Value& former, Value& field, ProjectRecord& record) {
  if (field == former) return;
  field = former;
  record.DataSaved = kFalse;
}

}  // namespace barvon
