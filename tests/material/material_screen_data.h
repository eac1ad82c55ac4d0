#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "material/load_water.h"
#include "material/material_support.h"
#include "material/solids_table.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {

/// A project of four fractions in water of 1.02 g/cc, and what a material screen keeps beside its
/// fields.
class Material_Screen_Data : public Recorded_Workspace {
 protected:
  Material_Screen_Data() {
    Set_Solids(record_, 4);
    record_.SiteDensity = 1.0200004;
    record_.SiteSalinity = 12.3456;
    record_.SiteTemperature = 17.0001;
    record_.DataSaved = kTrue;
  }

  /// The fields are as the screen filled them.
  static void Fill(Field_Table table, Field_Texts& texts) {
    for (const Field_Row& row : table) {
      const std::string* const text = texts.Find(row.control);
      if (text != nullptr) texts.Set_Filled(row.control, *text);
    }
  }
  /// What has changed since Note_Record, beside that it is not saved.
  std::vector<std::string> Changed() const {
    std::vector<std::string> fields = Differing_Fields(*before_, record_);
    std::erase(fields, "DataSaved");
    return fields;
  }
  void Note_Record() { *before_ = record_; }

  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  Solids_State state_;
  Spreadsheet_Table solids_{kBookNumbers};
};

}  // namespace barvon::testing
