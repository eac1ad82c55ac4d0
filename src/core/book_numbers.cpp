#include "core/book_numbers.h"

#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"

namespace barvon {
namespace {

Cell_Reading Read_Cell(std::string_view text) {
  const Number_Reading reading = Read_Real(std::string(text));
  return {*reading.value, !reading.differs};
}

std::string Show_Cell(double value, std::string_view pattern) {
  return pattern.empty() ? Plain_Number(value) : Format_Number(value, pattern);
}

}  // namespace

const Cell_Numbers kBookNumbers{Read_Cell, Show_Cell};

}  // namespace barvon
