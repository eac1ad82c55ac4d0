#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "core/project_record.h"
#include "params/simulation_data.h"
#include "pictures/time_line.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// "Time Step and Print Options": how long the simulation lasts, in which steps, and what the
/// solver prints.
class frmSimulation : public Input_Screen {
 public:
  explicit frmSimulation(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override;
  void Command1_Click(int index) override;

 private:
  QWidget* Time_Steps();
  QWidget* Printing_Options();
  void Connect();

  void Show_Hint(int field);
  void Set_Check(int index, bool checked);
  void SSCheck2_Click(int index);
  void Text2_Change();

  Simulation_Entry Entry() const;
  void Show_Times();

  ProjectRecord& record_;
  Simulation_Copy copy_;  // for Cancel

  ControlArray<QLineEdit> Text1{this, "Text1", 2};
  QLineEdit* Text2;
  ControlArray<QCheckBox> SSCheck2{this, "SSCheck2", kSimulationBoxes};
  QLabel* Label3;
  QWidget* Frame3D1;
  F1Book* F1Book1;
  Time_Line* time_line_;
  Table_Fields fields_;
};

}  // namespace barvon
