#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/project_record.h"

namespace barvon::testing {

/// Stands in for the screens that the wizard opens: each writes down that it was opened, does what
/// the test says, and is accepted or called off.
class Screen_Doubles {
 public:
  explicit Screen_Doubles(ProjectRecord& record) : record_(record) {
    for (const char* name : {"frmDescription", "frmVelocity", "frmMatHopper", "frmMatBarge",
                             "frmOperation", "frmMdlkyn", "Graphic_Data_Entry"}) {
      const Screen_Row& row = *Find_Screen(name);
      Register_Screen(row, [this, &row](bool blocking, const std::string&) {
        opened.push_back(row.name + std::string(blocking ? "" : " without blocking"));
        const auto act = acts.find(row.name);
        if (act != acts.end()) act->second();
        if (accepts) Accept_Screen(row, record_);
      });
    }
  }
  ~Screen_Doubles() {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
  }
  Screen_Doubles(const Screen_Doubles&) = delete;
  Screen_Doubles& operator=(const Screen_Doubles&) = delete;

  std::vector<std::string> opened;
  std::map<std::string, std::function<void()>> acts;  // what the user does there, by name
  bool accepts = true;                                // OK, not Cancel

 private:
  ProjectRecord& record_;
};

}  // namespace barvon::testing
