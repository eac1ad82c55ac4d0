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

}  // namespace barvon
