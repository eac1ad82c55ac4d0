#include "report/run_results.h"

#include <ctime>
#include <optional>
#include <utility>
#include <variant>

#include "core/desk/input_sum.h"
#include "platform/files/lock_holder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "results/result_reader.h"

namespace barvon {
namespace {

bool Has_Outputs(const std::string& file) {
  const std::string base = Base_Name(file);
  return Find_Path(base + ".dut").has_value() || Find_Path(base + ".duc").has_value();
}

}  // namespace

Run_Results Results_Beside(const ProjectRecord& record) {
  const std::string& file = record.ProjectFileName;
  if (file.empty() || !Has_Outputs(file)) return {};
  Results_Or_Problem read = Read_Results(file);
  if (const auto* problem = std::get_if<Result_Problem>(&read)) {
    if (problem->foreign) return {};
    return {nullptr, "The outputs of the run can't be shown. " + problem->Words() + "."};
  }
  auto results = std::make_shared<Results>(std::get<Results>(std::move(read)));
  const std::string made = Time_In_Words(static_cast<std::time_t>(results->made));
  if (!results->input_sum) {
    return {nullptr, "The outputs beside the project, of " + made +
                         ", do not tell what model input they are of. They are not shown here: "
                         "run the project again."};
  }
  if (results->input_sum != Input_Sum(record)) {
    return {nullptr, "The project was changed since the run whose outputs lie beside it, of " +
                         made + ". They are not shown here: run the project again."};
  }
  return {std::move(results), {}};
}

}  // namespace barvon
