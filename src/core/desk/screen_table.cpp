#include "core/desk/screen_table.h"

#include <set>

#include "core/keys.h"

namespace barvon {

const Screen_Row* Find_Screen(std::string_view name) {
  for (const Screen_Row& row : kScreens) {
    if (name == row.name) return &row;
  }
  return nullptr;
}

bool Serves_Vessel(const Screen_Row& row, const ProjectRecord& record) {
  switch (row.vessel) {
    case Vessel::Any:
      return true;
    case Vessel::Hopper:
      return record.DisposalMethod == kHopper || record.DisposalMethod == kContinuous;
    case Vessel::Barge:
      return record.DisposalMethod == kBarge;
  }
  return false;
}

std::vector<int> Help_Topics() {
  std::set<int> topics(kWizardTopics.begin(), kWizardTopics.begin() + kWizardPages);
  for (const Screen_Row& row : kScreens) {
    if (row.topic != help_topic::kContents) topics.insert(row.topic);
  }
  return {topics.begin(), topics.end()};
}

}  // namespace barvon
