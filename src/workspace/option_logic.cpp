#include "workspace/option_logic.h"

#include "platform/message_box.h"

namespace barvon {
namespace {

constexpr int kTypes = 3;
constexpr int kMethods = 2;
constexpr std::int16_t kKEY4[kTypes][kMethods] = {
    // hopper, barge
    {1, 2},  // general open water
    {3, 4},  // Section 103, ocean sites
    {5, 6},  // Section 404(b)(1), navigable waters
};
constexpr std::int16_t kMethodOfOption[kMethods] = {1, 3};
constexpr double kProjectFileKind = 2;

}  // namespace

std::optional<std::int16_t> KEY4_Value(int type, int method) {
  if (type < 0 || type >= kTypes || method < 0 || method >= kMethods) return std::nullopt;
  return kKEY4[type][method];
}

void Choose_Analysis_Type(int type, int method, ProjectRecord& record) {
  record.AnalysisType = static_cast<std::int16_t>(type + 1);
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.FileKind = kProjectFileKind;
}

void Choose_Disposal_Method(int type, int method, ProjectRecord& record) {
  record.DisposalMethod = kMethodOfOption[method];
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.KEY1 = 1;
  record.PreviousDisposalMethod = record.DisposalMethod;
}

int Type_Option(std::int16_t key4) { return key4 >= 1 && key4 <= 6 ? (key4 - 1) / 2 : -1; }

int Method_Option(std::int16_t disposal_method) {
  for (int option = 0; option < kMethods; ++option) {
    if (kMethodOfOption[option] == disposal_method) return option;
  }
  return -1;
}

bool Check_Eval(const ProjectRecord& record) {
  if (record.AnalysisType >= 0) return true;
  Show_Message({"Evaluation Type Must Be Selected", "BARVON Warning", Buttons::Ok, Icon::Warning});
  return false;
}

}  // namespace barvon
