#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <string>

#include "material/barge_data.h"
#include "material/material_copy.h"
#include "material/solids_panel.h"
#include "material/water_panel.h"
#include "pictures/bar_picture.h"
#include "platform/fields/cancel_copy.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/tab_pages.h"

namespace barvon {

/// "Material Description Data - Barge Dredge": a load in up to six layers, of one composition or
/// each of its own.
class frmMatBarge : public Input_Screen {
 public:
  explicit frmMatBarge(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override;
  void Discarding() override { copy_.Go_Back_To_Opening(); }
  void Command1_Click(int index) override;

 private:
  QWidget* Layers_Page();
  QWidget* Material_Page();
  QWidget* Composition_Page();
  QWidget* Water_Page();
  void Connect();
  void Order_Controls();

  void Text1_Change(int index);
  void SSCheck1_Click(int index);
  void Tab_Left(int page);
  void Show_Prompt();
  void Define_Composition();
  void Show_Stack();
  void Show_Composition(bool shown);
  void Enable_Composition();
  int Layers() const;
  std::string Doubts() const;
  void Save();

  ProjectRecord& record_;
  Cancel_Copy<Material_Copy> copy_;
  Layer_Moisture moisture_;

  ControlArray<QLineEdit> Text1{this, "Text1", 2};  // numbers of layers and of fractions
  QLineEdit* Text2;                                 // moisture content of the load
  ControlArray<QCheckBox> SSCheck1{this, "SSCheck1", 2};
  QPlainTextEdit* Text4_0;
  QPlainTextEdit* Text4_1;
  F1Book* F1Book1_0;  // layers
  F1Book* F1Book1_1;  // composition
  Bar_Picture* stack_;
  Table_Fields fields_;
  Water_Panel* water_;
  Solids_Panel* solids_;  // with F1Book1(2)
  Tab_Pages* tabs_;
};

}  // namespace barvon
