#pragma once

#include <optional>
#include <string>

#include "core/desk/screen_table.h"

namespace barvon {

/// Where a finding's reference leads: "frmOperation!Text1(2)".
struct Error_Target {
  const Screen_Row* screen;
  std::string control;  // empty where the screen is only shown
};

/// The screen and the control that can mend the finding. Nothing for a reference without "!" and
/// for the screens that the list does not lead to: the two material screens and the four names of
/// screens that no longer exist.
std::optional<Error_Target> Error_Target_Of(const std::string& reference);

/// While it is there the error list leads to that screen: one that shows more to who comes from a
/// finding than to who comes from a board asks for it when it opens.
class Lead_To_Screen {
 public:
  explicit Lead_To_Screen(const Screen_Row& screen);
  ~Lead_To_Screen();
  Lead_To_Screen(const Lead_To_Screen&) = delete;
  Lead_To_Screen& operator=(const Lead_To_Screen&) = delete;

 private:
  const Screen_Row* former_;
};
bool Is_Led_To(const Screen_Row& screen);

}  // namespace barvon
