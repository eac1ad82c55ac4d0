#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "core/project_record.h"
#include "params/operation_data.h"
#include "pictures/plan_picture.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// "Disposal Operation Data": where the vessel empties, what it is and how it moves meanwhile.
class frmOperation : public Input_Screen {
 public:
  explicit frmOperation(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override { Show_Plan(); }
  void Command1_Click(int index) override;

 private:
  QWidget* Fields();
  void Fill_Frames();
  void Connect();

  void Set_Check(bool checked);
  void Check3D1_Click();
  void Text2_Change();
  void Point_Chosen(const Feet_Point& point);
  void Save();

  Operation_Entry Entry() const;
  void Show_Plan();

  ProjectRecord& record_;
  Operation_Copy copy_;  // for Cancel

  ControlArray<QLineEdit> Text1{this, "Text1", kOperationFields};
  QLineEdit* Text2;
  ControlArray<QLineEdit> Text3{this, "Text3", kDepressionFields};
  ControlArray<QLineEdit> Text4{this, "Text4", kPipelineFields};
  QCheckBox* Check3D1;
  QGroupBox* Frame3D1;  // vessel velocity
  QGroupBox* Frame3D2;  // depression
  F1Book* F1Book1;
  QLabel* remark_;
  Plan_Picture* plan_;
  Table_Fields fields_;
};

}  // namespace barvon
