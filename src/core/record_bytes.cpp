#include "core/record_bytes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>

#include "core/byte_strings.h"

namespace barvon {
namespace {

using Names = std::initializer_list<std::string_view>;

bool Is_One_Of(const Record_Field& field, Names names) {
  return std::ranges::find(names, std::string_view(field.name)) != names.end();
}

bool Is_Text(const Record_Field& field) {
  return field.type == Field_Type::Text || field.type == Field_Type::Character;
}

/// Calls with the subscripts of every element until one says no.
template <class Call>
bool All_Elements(const Record_Field& field, const Call& call) {
  for (int i = field.count == 0 ? 0 : 1; i <= field.count; ++i) {
    for (int j = field.across == 0 ? 0 : 1; j <= field.across; ++j) {
      if (!call(i, j)) return false;
    }
  }
  return true;
}

const Record_Field* Find_Field(std::string_view name) {
  for (const Record_Field& field : Record_Fields()) {
    if (name == field.name) return &field;
  }
  return nullptr;
}

bool Fits(const Record_Field& field, double value) {
  using Limits = std::numeric_limits<std::int16_t>;
  return field.type != Field_Type::Integer || (value >= Limits::min() && value <= Limits::max());
}

/// The elements of one field; false when they end early or one can't be the field's.
bool Set_Elements(Byte_Reader& bytes, const Record_Field& field, ProjectRecord& record) {
  return All_Elements(field, [&](int i, int j) {
    if (Is_Text(field)) {
      const std::optional<std::string> text = bytes.Text();
      if (text) field.set_text(record, i, j, *text);
      return text.has_value();
    }
    const std::optional<double> value = bytes.Number();
    if (!value || !Fits(field, *value)) return false;
    field.set(record, i, j, *value);
    return true;
  });
}

}  // namespace

std::string Record_Bytes(const ProjectRecord& record,
                         const std::function<bool(const Record_Field&)>& counts) {
  std::string bytes;
  for (const Record_Field& field : Record_Fields()) {
    if (!counts(field)) continue;
    std::string elements;
    All_Elements(field, [&](int i, int j) {
      if (Is_Text(field)) {
        Append_Text(elements, field.text(record, i, j));
      } else {
        Append_Number(elements, field.number(record, i, j));
      }
      return true;
    });
    Append_Text(bytes, field.name);
    Append_Text(bytes, elements);
  }
  return bytes;
}

bool Set_Record_Bytes(std::string_view bytes, ProjectRecord& record) {
  const auto filled = std::make_unique<ProjectRecord>(record);
  Byte_Reader reader(bytes);
  while (!reader.Is_At_End()) {
    const std::optional<std::string> name = reader.Text();
    const std::optional<std::string> elements = name ? reader.Text() : std::nullopt;
    if (!elements) return false;
    const Record_Field* field = Find_Field(*name);
    if (field == nullptr) continue;
    Byte_Reader values(*elements);
    if (!Set_Elements(values, *field, *filled) || !values.Is_At_End()) return false;
  }
  // The list's end is asked of it everywhere.
  if (filled->DiluteRowCount < 0 || filled->DiluteRowCount > kMaxDilutionRows) return false;
  record = *filled;
  return true;
}

bool Is_Program_State(const Record_Field& field) {
  return Is_One_Of(
      field, {"ShowMode", "WizardHelpOn", "AlwaysSaveBeforeRun", "WizardAtStart", "WizardActive",
              "LegacyKeyRebuild", "OutputsCopied", "HelpContextToShow", "ActiveDatabaseList"});
}

bool Is_Dilution_Data(const Record_Field& field) {
  return Is_One_Of(field,
                   {"DiluteParameterNames", "DiluteBulk", "DiluteElutriate", "DiluteCriteria",
                    "DiluteBackground", "DiluteSolidsConc", "DiluteRowCount"});
}

bool Is_Project_Data(const Record_Field& field) {
  const std::string_view name = field.name;
  if (Is_Program_State(field) || name.starts_with("Dilute")) return false;
  return !Is_One_Of(
      field, {"ProjectFileName",   "BaseFileName",     "FileKind",         "DataSaved",
              "SavedUnderScreens", "FileTypeTag",      "AnalysisType",     "OldGridFile",
              "OldGridRetry",      "SectionFlags",     "SectionStatus",    "ScreenDataSupplied",
              "WizardAccepted",    "SolidsVolumeSum",  "SolidsMassSum",    "SiteGridTop",
              "SiteGridBottom",    "SiteGridLeft",     "SiteGridRight",    "ZidGridTop",
              "ZidGridBottom",     "ZidGridLeft",      "ZidGridRight",     "CohesiveCount",
              "StrippedCount",     "TracerSolidCount", "DepthGridFlagOut", "IntSlots",
              "RealSlots"});
}

}  // namespace barvon
