#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "core/project_record.h"
#include "pictures/density_profile.h"
#include "platform/fields/cancel_copy.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "site/site_data.h"

namespace barvon {

/// "Disposal Site Data": grid, depth, bottom and the density profile of the disposal site.
class frmDescription : public Input_Screen {
 public:
  explicit frmDescription(QWidget* workspace);
  ~frmDescription() override;

  /// 3 has no button and is OK; 4 has none either and closes without saving or restoring.
  void Command1_Click(int index) override;

 protected:
  void Opening() override;
  void Activated() override;
  void Discarding() override { copy_.Go_Back_To_Opening(); }

 private:
  QWidget* Grid_Frames();
  QWidget* Depth_Frames();
  QWidget* Density_Frame();
  void Connect();
  void Order_Controls();

  void Set_Text1(int index, const std::string& text);
  void Set_Check(int index, bool checked);
  void Text1_Change(int index);
  void Check3D1_Click(int index);
  void Command2_Click(int index);
  void F1Book1_EndEdit();
  void Save();
  void Reset();

  Site_Entry Entry() const;
  void Show_Dimensions();
  void Show_Profile();
  void Tell_Boxes();

  ProjectRecord& record_;
  Cancel_Copy<Site_Copy> copy_;
  bool boxes_are_told_ = false;

  ControlArray<QLineEdit> Text1{this, "Text1", kSiteFields};
  ControlArray<QLineEdit> Text2{this, "Text2", 2};  // DistZ, DistX
  ControlArray<QCheckBox> Check3D1{this, "Check3D1", 2};
  ControlArray<QPushButton> Command2{this, "Command2", 2};
  Table_Fields fields_{this, Faces_Of(Site_Fields(), Project())};
  F1Book* F1Book1;
  Density_Profile* profile_;
};

}  // namespace barvon
