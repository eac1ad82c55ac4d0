#include "checks/error_navigation.h"

#include <utility>

namespace barvon {
namespace {

const Screen_Row*& Led_To() {
  static const Screen_Row* screen = nullptr;
  return screen;
}

}  // namespace

std::optional<Error_Target> Error_Target_Of(const std::string& reference) {
  const auto mark = reference.find('!');
  if (mark == std::string::npos) return std::nullopt;
  const Screen_Row* row = Find_Screen(reference.substr(0, mark));
  if (row == nullptr || row->lead == Error_Lead::Nowhere) return std::nullopt;
  const bool focuses = row->lead == Error_Lead::To_Control;
  return Error_Target{row, focuses ? reference.substr(mark + 1) : std::string()};
}

Lead_To_Screen::Lead_To_Screen(const Screen_Row& screen)
    : former_(std::exchange(Led_To(), &screen)) {}

Lead_To_Screen::~Lead_To_Screen() { Led_To() = former_; }

bool Is_Led_To(const Screen_Row& screen) { return Led_To() == &screen; }

}  // namespace barvon
