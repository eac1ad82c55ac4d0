#include "results/phase_reader.h"

#include <cstddef>

#include "results/result_lines.h"

namespace barvon {
namespace {

constexpr std::size_t kStepColumns = 14, kStepNumbers = 10;  // a number a solid follows
constexpr std::size_t kGap = 2;

}  // namespace

std::optional<Result_Problem> Check_Phases(const std::string& file, std::string_view bytes,
                                           Results& results) {
  Result_Lines lines(file, bytes);
  if (auto problem = Take_Result_Head(lines, "Descent and collapse", results)) return problem;
  int phases = 0;
  std::size_t length = 0;  // of every STEP line
  for (; !lines.At_End(); lines.Next()) {
    Result_Columns columns(lines.Line());
    if (lines.Tag() == "PHAS ") {
      ++phases;
      columns.Count(phases, phases);
      columns.Skip_Blanks(kGap);
      columns.Rest();
    } else if (lines.Tag() == "STEP ") {
      if (phases == 0) columns.Fail("a step before the first phase");
      if (length == 0) length = lines.Line().size();
      if (lines.Line().size() != length) columns.Fail("not as long as the steps before");
      const std::size_t numbers = (length - kTagColumns) / kStepColumns;
      if (numbers <= kStepNumbers) columns.Fail("a step without solids");
      for (std::size_t i = 0; i < numbers; ++i) columns.Sci();
      columns.End();
    } else {
      return lines.Unknown_Tag();
    }
    if (!columns.Reason().empty()) return lines.Problem(columns.Reason());
  }
  return lines.Changed();
}

}  // namespace barvon
