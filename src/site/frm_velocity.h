#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/project_record.h"
#include "pictures/tidal_curve.h"
#include "pictures/two_point_profile.h"
#include "pictures/velocity_arrows.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/scrolled_part.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "site/grid_csv_buttons.h"
#include "site/velocity_data.h"

namespace barvon {

/// "Velocity Profile Data": the current at the site in one of four forms.
class frmVelocity : public Input_Screen {
 public:
  explicit frmVelocity(QWidget* workspace);

  /// 3 has no button and is OK; 4 has none either and goes on to the depth grid without saving.
  void Command1_Click(int index) override;

 protected:
  void Opening() override;
  void Activated() override;

 private:
  /// What a field was filled from, for as long as its text stands.
  struct Filled_Text {
    std::string text;
    double value = 0;
  };

  QWidget* Choice_Part();
  void Build_Single_Frame();
  void Build_Two_Point_Frame();
  void Build_Field_Frame();
  QWidget* Build_Field(int direction);
  void Build_Unsteady_Frame();
  QLayout* Note_Row();
  void Set_Tab_Order();
  void Connect();

  void Option3D1_Click(int form);
  void Check3D1_Click();
  void Check3D2_Click(int direction);
  void Enable_Constant(int direction, bool enabled);
  void Text2_Change(int direction);
  void Text3_Change();
  void Save();

  void Show_Form();
  void Show_Fields(const Velocity_Entry& entry);
  void Show_Unsteady(const Velocity_Entry& entry);
  void Show_Averages_Of_Filling();
  void Show_Averages();
  static std::size_t At(int index) { return static_cast<std::size_t>(index); }
  static Number_Note Note(const Filled_Text& filled);
  void Set_Field(QLineEdit* field, Filled_Text& filled, const std::string& text, double value);
  Velocity_Entry Entry() const;

  void Draw_Points();
  void Draw_Arrows();
  void Draw_Tide();

  ProjectRecord& record_;
  Saved_Velocity saved_;

  ControlArray<QRadioButton> Option3D1{this, "Option3D1", kVelocityForms};
  ControlArray<QLabel> Picture1{this, "Picture1", kVelocityForms};
  ControlArray<QGroupBox> Frame3D{this, "Frame3D", kVelocityForms};
  ControlArray<QPlainTextEdit> Text4{this, "Text4", 2};
  QLabel* Label5;
  Scrolled_Part* forms_;

  ControlArray<QLineEdit> Text1{this, "Text1", 3};
  QCheckBox* Check3D1;
  std::array<Filled_Text, 3> filled1_;

  F1Book* F1Book1;
  ControlArray<QLabel> Label3{this, "Label3", 3};
  Two_Point_Profile* profile_;

  ControlArray<QCheckBox> Check3D2{this, "Check3D2", kDirections};
  ControlArray<QLineEdit> Text2{this, "Text2", kDirections};
  ControlArray<F1Book> F1Book2;
  std::vector<Grid_Csv_Buttons> csv_;
  Velocity_Arrows* arrows_;
  std::array<Filled_Text, kDirections> filled2_;

  F1Book* F1Book3;
  ControlArray<QLineEdit> Text3{this, "Text3", 5};
  Tidal_Curve* tide_;
  std::array<Filled_Text, 3> filled3_;
};

}  // namespace barvon
