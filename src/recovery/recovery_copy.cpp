#include "recovery/recovery_copy.h"

#include <charconv>
#include <utility>

#include "core/byte_strings.h"
#include "core/desk/load_record.h"
#include "core/record_bytes.h"
#include "platform/files/check_sum.h"

namespace barvon {
namespace {

constexpr std::string_view kFirstLine = "BARVON recovery copy 2\n";
constexpr std::size_t kSumLength = sizeof(std::uint64_t);

bool Is_Kept(const Record_Field& field) { return !Is_Program_State(field); }

std::string Sum_Of(std::string_view bytes) {
  const std::uint64_t sum = Check_Sum(bytes);
  return {reinterpret_cast<const char*>(&sum), sizeof sum};
}

std::optional<std::int64_t> Whole_Number(const std::optional<std::string>& text) {
  std::int64_t number = 0;
  if (!text) return std::nullopt;
  const char* const end = text->data() + text->size();
  const auto [behind, error] = std::from_chars(text->data(), end, number);
  return error == std::errc() && behind == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::string Copy_Bytes(const Recovery_Copy& copy) {
  std::string bytes(kFirstLine);
  const File_State file = copy.file.value_or(File_State{});
  for (const std::int64_t number :
       {static_cast<std::int64_t>(copy.made), std::int64_t{copy.file ? 1 : 0}, file.changed,
        file.size, std::int64_t{copy.project_is_unsaved ? 1 : 0},
        std::int64_t{copy.dilutions_are_unsaved ? 1 : 0}}) {
    Append_Text(bytes, std::to_string(number));
  }
  Append_Text(bytes, copy.project);
  Append_Text(bytes, Record_Bytes(*copy.record, Is_Kept));
  return bytes + Sum_Of(bytes);
}

std::optional<Recovery_Copy> Read_Copy(std::string_view bytes) {
  if (!bytes.starts_with(kFirstLine) || bytes.size() < kFirstLine.size() + kSumLength) {
    return std::nullopt;
  }
  const std::string_view sum = bytes.substr(bytes.size() - kSumLength);
  bytes.remove_suffix(kSumLength);
  if (sum != Sum_Of(bytes)) return std::nullopt;
  Byte_Reader reader(bytes.substr(kFirstLine.size()));
  const auto made = Whole_Number(reader.Text());
  const auto has_file = Whole_Number(reader.Text());
  const auto changed = Whole_Number(reader.Text());
  const auto size = Whole_Number(reader.Text());
  const auto project = Whole_Number(reader.Text());
  const auto dilutions = Whole_Number(reader.Text());
  const std::optional<std::string> own = reader.Text();
  const std::optional<std::string> fields = reader.Text();
  if (!made || !has_file || !changed || !size || !project || !dilutions || !own || !fields ||
      !reader.Is_At_End()) {
    return std::nullopt;
  }
  Recovery_Copy copy{Fresh_Record(),  static_cast<std::time_t>(*made),
                     std::nullopt,    *project != 0,
                     *dilutions != 0, *own};
  if (*has_file != 0) copy.file = File_State{*changed, *size};
  if (!Set_Record_Bytes(*fields, *copy.record)) return std::nullopt;
  return copy;
}

void Put_Copy(const Recovery_Copy& copy, ProjectRecord& record) {
  Set_Record_Bytes(Record_Bytes(*copy.record, Is_Kept), record);
  record.DataSaved = copy.project_is_unsaved ? kFalse : kTrue;
  record.SavedUnderScreens = kFalse;
}

}  // namespace barvon
