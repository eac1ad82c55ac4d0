#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// One finding: what is wrong and where it is mended.
struct Error_Entry {
  std::string message;
  std::string reference;  // "frmDescription!Text1(0)"; empty when none is set
};

/// Help topics are kept for entries 0 to 20 only; those of later entries are not stored.
inline constexpr int kErrorHelpTopics = 21;

/// The findings of one check, in rule order. The list itself has no upper bound.
struct Error_List {
  Flag ErrorsFound = kFalse;
  std::int16_t ErrorCount = 0;  // number of entries; stays at 32767 beyond it
  std::vector<Error_Entry> entries;
  std::array<int, kErrorHelpTopics> ErrorHelpTopics{};  // read at list index + 1

  /// Adds a finding. A topic other than 0 is stored at the number of entries after adding, so the
  /// first entry's topic is at 1.
  void Add(std::string message, std::string reference, int topic = 0);
};

}  // namespace barvon
