#include "recovery/recovery_keeper.h"

#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "core/desk/workspace_port.h"
#include "core/record_bytes.h"
#include "platform/files/check_sum.h"

namespace barvon {
namespace {

std::uint64_t Sum_Of(const ProjectRecord& record, bool (*counts)(const Record_Field&)) {
  return Check_Sum(Record_Bytes(record, counts));
}

}  // namespace

Recovery_Keeper::Recovery_Keeper(const ProjectRecord& record)
    : record_(record),
      project_(Sum_Of(record, Is_Project_Data)),
      dilutions_(Sum_Of(record, Is_Dilution_Data)) {}

std::unique_ptr<ProjectRecord> Recovery_Keeper::Accepted() const {
  auto accepted = std::make_unique<ProjectRecord>(record_);
  Port().wizard.take_back(*accepted);
  return accepted;
}

bool Recovery_Keeper::Is_Unsaved(const ProjectRecord& accepted) const {
  return record_.DataSaved == kFalse && Sum_Of(accepted, Is_Project_Data) != project_;
}

bool Recovery_Keeper::Dilutions_Are_Unsaved() const {
  return Sum_Of(record_, Is_Dilution_Data) != dilutions_;
}

void Recovery_Keeper::Look() {
  if (ended_) return;
  std::unique_ptr<ProjectRecord> accepted = Accepted();
  if (Is_Unsaved(*accepted) || Dilutions_Are_Unsaved()) {
    Keep(std::move(accepted));
  } else {
    own_.Remove();
  }
}

bool Recovery_Keeper::Keep(std::unique_ptr<ProjectRecord> accepted) {
  const bool is_unsaved = Is_Unsaved(*accepted);
  Recovery_Copy copy{std::move(accepted), std::time(nullptr),      Held_State(),
                     is_unsaved,          Dilutions_Are_Unsaved(), Held_Project()};
  Port().dilution.name_project(*copy.record);
  const File_State file = copy.file.value_or(File_State());
  const std::string around = copy.record->ProjectFileName + "\n" + copy.record->BaseFileName +
                             "\n" + copy.project + "\n" + std::to_string(file.changed) + " " +
                             std::to_string(file.size) + (copy.project_is_unsaved ? "p" : "") +
                             (copy.dilutions_are_unsaved ? "d" : "");
  const std::uint64_t now = Sum_Of(*copy.record, Is_Project_Data) ^ Check_Sum(around) ^
                            Sum_Of(record_, Is_Dilution_Data) << 1;
  if (own_.Stands() && now == kept_) return true;
  const int error = own_.Write(Copy_Bytes(copy));
  if (error == 0) {
    kept_ = now;
    if (!told_.empty()) Port().board.take_back_note(std::exchange(told_, {}));
  } else if (told_.empty()) {
    told_ =
        "No copy can be kept of what is not saved yet: " + std::generic_category().message(error) +
        ".";
    Port().board.show_note({told_, {}});
  }
  return error == 0;
}

void Recovery_Keeper::Settle() {
  project_ = Sum_Of(record_, Is_Project_Data);
  Look();
}

void Recovery_Keeper::Settle_Dilutions() {
  dilutions_ = Sum_Of(record_, Is_Dilution_Data);
  Look();
}

bool Recovery_Keeper::Take_Over(const Recovery_Copy& copy) {
  // A sum that the record does not have.
  project_ = Sum_Of(record_, Is_Project_Data) + (copy.project_is_unsaved ? 1 : 0);
  dilutions_ = Sum_Of(record_, Is_Dilution_Data) + (copy.dilutions_are_unsaved ? 1 : 0);
  return Keep(Accepted());
}

void Recovery_Keeper::Leave() {
  if (ended_) return;
  own_.Remove();
  ended_ = true;
}

void Recovery_Keeper::Leave_Unasked() {
  Look();
  own_.Leave();
  ended_ = true;
}

}  // namespace barvon
