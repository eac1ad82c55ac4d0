#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

#include "core/project_record.h"
#include "params/evaluation_data.h"
#include "pictures/plan_picture.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"

namespace barvon {

/// "Mixing Zone Data": boundary, contaminant, Zone of Initial Dilution and output depths of a water
/// column evaluation. What it shows depends on the evaluation.
class frmMdlkyn : public Input_Screen {
 public:
  explicit frmMdlkyn(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override { Show_Site(); }
  void Opened_Again() override;
  void Command1_Click(int index) override;

 private:
  QWidget* Description_Tab();
  QWidget* Zid_Tab();
  QWidget* Output_Tab();
  void Order_Controls();
  void Connect();

  void Show_Or_Hide_Boundary();
  void Check3D1_Click();
  void Text8_Change(int index);
  void Lock_Depths();
  void Choose_Corner(const Plan_Corner& corner);
  void Choose_Corner_Of_Tab();
  void Plan_Clicked(const Feet_Point& point);
  void Show_Site();
  bool Accepts_Count();
  void Tell_Count();
  void Save();

  Evaluation_Input Input() const;

  ProjectRecord& record_;
  Evaluation_Shape shape_;
  Evaluation_Copy copy_;     // for Cancel
  bool told_count_ = false;  // an OK has told of the number that stands there

  ControlArray<QLineEdit> Text{this, "Text", kCornerFields};
  ControlArray<QLineEdit> Text1{this, "Text1", kLimitFields};
  QLineEdit* Text2;
  QPlainTextEdit* Text3;
  ControlArray<QLineEdit> Text4{this, "Text4", kTracerFields};
  ControlArray<QLineEdit> Text5{this, "Text5", kCornerFields};
  QLineEdit* Text6;
  ControlArray<QLineEdit> Text8{this, "Text8", kOutputFields};
  QCheckBox* Check3D1;
  QTabWidget* SSTab1;
  QGroupBox* mixzone;
  Plan_Picture* plan_;
  Plan_Corner corner_;  // that a click on the plan puts somewhere
  Table_Fields fields_;
};

}  // namespace barvon
