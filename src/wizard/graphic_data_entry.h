#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "core/project_record.h"
#include "pictures/plan_picture.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "wizard/graphic_data.h"

namespace barvon {

/// "Graphical Site Data": a grid is dragged out or typed and constructed, and the disposal site
/// picked on it.
class Graphic_Data_Entry : public Input_Screen {
 public:
  explicit Graphic_Data_Entry(QWidget* workspace);

 protected:
  void Opening() override;
  void Command1_Click(int index) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QWidget* Grid_Part();
  QWidget* Site_Part();
  void Connect();

  void Rectangle_Typed();
  void Command3_Click();
  void Command2_Click();
  void Area_Dragged(const Field_Texts& texts);
  void Point_Chosen(const Picture_Point& place);
  void Ask_Radius();
  void Save();
  void Show_Page();

  ProjectRecord& record_;
  Graphic_Page page_;

  QGroupBox* frame_;  // Graphic_Data_Entry(0)
  ControlArray<QLineEdit> Text6{this, "Text6", kRectangleFields};
  ControlArray<QLineEdit> Text2{this, "Text2", kResultFields};
  ControlArray<QLineEdit> Text3{this, "Text3", kSiteCornerFields};
  QLabel* Label4;
  QLabel* Label6;
  QPushButton* Command2;
  QPushButton* Command3;
  Plan_Picture* Picture1;
  Table_Fields fields_;
};

}  // namespace barvon
