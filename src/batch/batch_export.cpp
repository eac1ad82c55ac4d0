#include "batch/batch_export.h"

#include <string>

#include "batch/batch_findings.h"
#include "batch/batch_output.h"
#include "batch/batch_products.h"
#include "batch/batch_project.h"
#include "core/failure.h"
#include "core/model_input/model_input.h"

namespace barvon {
namespace {

int Export(const std::string& file, const std::string& target, Known_Folders& folders,
           const May_Write& may_write) {
  const auto record = Open_Project(file, folders);
  if (!record) return kNotDone;
  Say_Remarks(file, *record);
  std::string text;
  if (const Failure failure = Make_Model_Input(*record, text); failure != Failure::None) {
    Say_Problem(file, std::string("the model input can't be written: ") + Failure_Name(failure));
    return kNotDone;
  }
  if (text.empty()) {
    Say_Problem(file, "there is no model input for its disposal method");
    return kNotDone;
  }
  return Write_Product(file, target, text, may_write);
}

}  // namespace

int Export_Projects(const Batch_Options& options, Known_Folders& folders) {
  return Write_Products(options,
                        {"model input", "DUE",
                         "several projects can only be exported into an existing folder", Export},
                        folders);
}

}  // namespace barvon
