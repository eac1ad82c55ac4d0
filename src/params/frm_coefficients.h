#pragma once

#include <QCheckBox>

#include "core/project_record.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// "Table of Coefficients": the solver's empirical coefficients beside their defaults.
class frmCoefficients : public Input_Screen {
 public:
  explicit frmCoefficients(QWidget* workspace);

 protected:
  void Opening() override;
  void Command1_Click(int index) override;

 private:
  void Save();

  ProjectRecord& record_;
  bool UsingDefaults = false;  // Default was pressed and nothing edited since
  F1Book* F1Book1;
  QCheckBox* Check3D1;
};

}  // namespace barvon
