#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "material/hopper_data.h"
#include "material/material_copy.h"
#include "material/solids_panel.h"
#include "material/water_panel.h"
#include "platform/fields/cancel_copy.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/tab_pages.h"

namespace barvon {

/// "Material Description Data - Hopper Dredge": a load that is one mixture, of a hopper or of a
/// pipeline.
class frmMatHopper : public Input_Screen {
 public:
  explicit frmMatHopper(QWidget* workspace);
  ~frmMatHopper() override;

 protected:
  void Opening() override;
  void Activated() override;
  void Discarding() override { copy_.Go_Back_To_Opening(); }
  void Command1_Click(int index) override;

 private:
  QWidget* General_Page();
  QWidget* Material_Page();
  void Connect();
  void Show_By_Method();
  void Show_Moisture(bool shown);
  void SSCheck1_Click();
  void Tell_Boxes();
  void Save();

  ProjectRecord& record_;
  Cancel_Copy<Material_Copy> copy_;
  bool boxes_are_told_ = false;

  QLineEdit* Text1;
  ControlArray<QLineEdit> Text2{this, "Text2", 2};
  QCheckBox* SSCheck1;
  QPlainTextEdit* Text4_1;
  Table_Fields fields_;
  Water_Panel* water_;
  Solids_Panel* solids_;
  Tab_Pages* tabs_;
};

}  // namespace barvon
