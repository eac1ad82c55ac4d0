#include <algorithm>
#include <cstdint>
#include <memory>

#include "core/byte_strings.h"
#include "core/desk/analysis_keys.h"
#include "core/desk/load_record.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "core/record_bytes.h"
#include "core/record_fields.h"
#include "fuzz/readers.h"
#include "platform/files/check_sum.h"
#include "platform/files/lock_file.h"
#include "recovery/recovery_copy.h"
#include "report/project_differences.h"
#include "support/record_differences.h"

namespace barvon::fuzz {
namespace {

// ---- Recovery copies

constexpr int kFewElements = 60;  // the fields of a copy that is short enough to be led

bool Is_Short(const Record_Field& field) {
  return !Is_Program_State(field) &&
         std::max(field.count, 1) * std::max(field.across, 1) <= kFewElements;
}

/// The bytes in front of the sum, with theirs: what is behind it is to be reached as well.
std::string With_Sum(std::string_view bytes) {
  std::string text(bytes.substr(0, bytes.size() - std::min(bytes.size(), sizeof(std::uint64_t))));
  const std::uint64_t sum = Check_Sum(text);
  return text.append(reinterpret_cast<const char*>(&sum), sizeof sum);
}

std::string Short_Copy(const ProjectRecord& record) {
  std::string bytes = "BARVON recovery copy 2\n";
  for (const char* number : {"1795338000", "1", "1795337000123456789", "-1", "1", "0"}) {
    Append_Text(bytes, number);
  }
  Append_Text(bytes, "/data/site.DUI");
  Append_Text(bytes, Record_Bytes(record, Is_Short));
  return With_Sum(bytes + "01234567");
}

std::vector<std::string> Short_Copies() {
  std::vector<std::string> copies = {Short_Copy(*Fresh_Record())};
  for (const std::string& file : Files_Of(BARVON_SAMPLES, ".DUI")) {
    const auto record = Fresh_Record();
    if (Load_Project("site.dui", file, *record).failure != Failure::None) continue;
    copies.push_back(Short_Copy(*record));
  }
  return copies;
}

std::vector<std::string> Copies() {
  std::vector<std::string> copies = Short_Copies();
  Recovery_Copy copy{Fresh_Record(), 1'795'338'000, std::nullopt, true, false, "/data/site.DUI"};
  copies.push_back(Copy_Bytes(copy));
  return copies;
}

void Read_Copies(std::string_view bytes) {
  Read_Copy(bytes);
  Read_Copy(With_Sum(bytes));
}

void Hold_Copies(std::string_view bytes) {
  const std::optional<Recovery_Copy> copy = Read_Copy(With_Sum(bytes));
  if (!copy) return;
  const std::string kept = Copy_Bytes(*copy);
  const std::optional<Recovery_Copy> again = Read_Copy(kept);
  Demand(again && Copy_Bytes(*again) == kept, "a copy stays as it is");
  const auto record = Fresh_Record();
  // As it is offered: how long that takes is the size of the grid's, not of the bytes.
  const auto here = std::make_unique<ProjectRecord>(*copy->record);
  Refresh_Record(*here);
  Differences_Of(*record, *here);
  Put_Copy(*copy, *record);
  Pack_Slots(*record);
  const std::string saved = Save_Project("site.dui", *record);
  if (saved.empty()) return;
  const auto loaded = Fresh_Record();
  Demand(Load_Project("site.dui", saved, *loaded).failure == Failure::None,
         "a restored project that was saved can be loaded");
}

// ---- Lock files

constexpr char kLock[] = "site.DUI.lock";

std::vector<std::string> Locks() {
  Lock_Holder ended = This_Program();
  ended.start = "1";  // of the system itself: no program that runs began then
  ended.since = 1'795'338'000;
  return {
      "BARVON lock 1\nuser=anna\nhost=tide\nprogram=barvon\nprocess=4711\nstart=123456\n"
      "machine=0123456789abcdef0123456789abcdef\nboot=01234567-89ab-cdef-0123-456789abcdef\n"
      "since=1795338000\nend\n",
      Holder_Lines(ended)};
}

void Read_Lock(std::string_view bytes) {
  Put(kLock, bytes);
  Lock_File lock;
  const auto outcome = lock.Take(Work_Folder() + "/" + kLock);
  Demand(outcome != Lock_File::Outcome::Not_Possible, "a lock is taken or somebody's");
  if (lock.Holder()) Holder_In_Words(*lock.Holder());
  if (outcome == Lock_File::Outcome::Held) {
    Demand(Content(kLock) == bytes, "what somebody holds stays");
  } else {
    Demand(lock.Holder() && State_Of(*lock.Holder()) == Holder_State::Has_Ended,
           "only an ended program's lock is taken unasked");
  }
}

void Hold_Lock(std::string_view bytes) {
  Put(kLock, bytes);
  Lock_File lock;
  const auto outcome = lock.Take(Work_Folder() + "/" + kLock, Lock_File::Foreign::Goes);
  Demand(outcome == Lock_File::Outcome::Taken ||
             (lock.Holder() && State_Of(*lock.Holder()) == Holder_State::Runs),
         "a lock that a person wants is taken from all but a running program");
  const std::optional<Lock_Holder> holder = Read_Holder(bytes);
  if (!holder) return;
  const std::string lines = Holder_Lines(*holder);
  const std::optional<Lock_Holder> again = Read_Holder(lines);
  Demand(again && Holder_Lines(*again) == lines, "a holder stays as it is");
}

constexpr Reader kReaders[] = {
    {"recovery", 4, Copies, Read_Copies, Hold_Copies, nullptr},
    {"recovery_short", 0, Short_Copies, Read_Copies, Hold_Copies, nullptr},
    {"lock", 4, Locks, Read_Lock, Hold_Lock, nullptr},
};

}  // namespace

std::span<const Reader> Left_File_Readers() { return kReaders; }

}  // namespace barvon::fuzz
