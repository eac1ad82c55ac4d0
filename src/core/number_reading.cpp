#include "core/number_reading.h"

#include <cstdint>

#include "core/failure.h"
#include "core/number_text.h"

namespace barvon {
namespace {

constexpr char kOutsideWhole[] = "can't be read: a whole number from -32768 to 32767 belongs here";

Number_Reading Read_Int16(const std::string& text, std::int16_t (*to_int16)(double)) {
  const Number_Reading real = Read_Real(text);
  try {
    const double whole = to_int16(*real.value);
    return {whole, real.differs || whole != *real.value};
  } catch (const Run_Time_Failure&) {
    return {std::nullopt, true};
  }
}

std::string Note(const Number_Reading& reading) {
  if (!reading.differs) return "";
  return reading.value ? "reads as " + Plain_Number(*reading.value) : kOutsideWhole;
}

}  // namespace

Number_Reading Read_Real(const std::string& text) {
  const Number_Start start = Read_Number_Start(text);
  const bool all_read = start.end > 0 && text.find_first_not_of(" \t", start.end) == text.npos;
  return {start.value, !all_read || !start.in_range};
}

Number_Reading Read_Whole(const std::string& text) { return Read_Int16(text, To_Int16); }

Number_Reading Read_Cut(const std::string& text) { return Read_Int16(text, Cut_To_Int16); }

std::string Real_Note(const std::string& text) { return Note(Read_Real(text)); }
std::string Whole_Note(const std::string& text) { return Note(Read_Whole(text)); }
std::string Cut_Note(const std::string& text) { return Note(Read_Cut(text)); }

}  // namespace barvon
