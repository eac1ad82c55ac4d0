#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/project_record.h"
#include "pictures/depth_map.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "site/depth_grid.h"
#include "site/grid_csv_buttons.h"

namespace barvon {

/// "Variable Depth Grid": the water depth at every grid point, in the size that the open site
/// screen asks for.
class frmGridDescrip : public Input_Screen {
 public:
  explicit frmGridDescrip(QWidget* workspace);

  /// 3 has no button and is OK; 4 has none either and goes back to the site screen without saving.
  void Command1_Click(int index) override;

 protected:
  void Opening() override;

 private:
  QWidget* Initial_Frame();
  QWidget* Grid_Frame();
  QHBoxLayout* Button_Row();
  void Connect();

  void Check3D2_Click();
  void Text1_Change();
  void F1Book1_EndEdit(int row, int column, int last_row, int last_column);
  void Save();
  void Imported();
  void Show_Map();
  void Show_Drawn();
  void Show_Remark();
  Depth_Grid_Entry Entry() const;

  ProjectRecord& record_;
  Depth_Grid_Size size_;
  Typed_Number filled_;      // Text1 as it was filled
  double InitialDepth_ = 0;  // the last valid number of Text1, ft

  QCheckBox* Check3D2;
  QLineEdit* Text1;
  Table_Fields fields_;
  QPushButton* Command2;
  F1Book* F1Book1;
  Depth_Map* map_;
  Depth_Grid drawn_;  // what the map shows of the table
  Grid_Csv_Buttons csv_;
};

/// Registers the screen. It does not open for a size that the depth grid can't hold.
void Register_frmGridDescrip(QWidget* workspace);

}  // namespace barvon
