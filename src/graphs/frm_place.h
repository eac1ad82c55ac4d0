#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <optional>

#include "platform/qt/input_screen.h"
#include "results/place_entry.h"

namespace barvon {

/// "Place of the Grid": how the site's grid lies in a coordinate system.
class frmPlace : public Input_Screen {
 public:
  /// The grid is the one whose corners are shown in the coordinates that are typed.
  frmPlace(QWidget* window, const Result_Grid& grid, const std::optional<Map_Place>& offered);

  /// What OK has taken; nothing before.
  const std::optional<Map_Place>& place() const { return place_; }

 protected:
  void Opening() override;
  void Command1_Click(int index) override;

 private:
  QLineEdit* New_Field(const QString& name);
  Place_Entry Entry() const;
  QLineEdit* Field_Of(Place_Field field) const;
  void Show_Corners();
  bool Accept_Entry();

  Result_Grid grid_;
  std::optional<Map_Place> offered_, place_;
  QLineEdit *txtEasting, *txtNorthing, *txtTurn, *txtSystem;
  QComboBox* cboUnit;
  QLabel* lblCorners;
};

/// Asks for the place; nothing on Cancel.
std::optional<Map_Place> Ask_Place(const Result_Grid& grid,
                                   const std::optional<Map_Place>& offered);

}  // namespace barvon
