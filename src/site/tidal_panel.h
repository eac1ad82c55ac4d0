#pragma once

#include <array>

#include "pictures/tidal_curve.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "site/velocity_panel.h"

namespace barvon {

/// X and Z velocity by half hours, and their averages over the interval that is simulated.
class Tidal_Panel : public Velocity_Panel {
 public:
  explicit Tidal_Panel(ProjectRecord& record);

  void Shown() override;
  void Read(Velocity_Entry& entry) const override;
  void Stored() override;
  void Show_Wizard() override;
  /// Text4(1): start, duration and end of the interval.
  QPlainTextEdit* Note() const override { return Text4_1; }
  std::vector<QWidget*> Order() const override;

 protected:
  void Fill(const Velocity_Entry& entry) override;

 private:
  Velocity_Entry Entry() const;
  void Draw();
  /// False, and nothing is shown, while there is no duration to average over.
  bool Show_Averages();
  void Show_Interval();

  F1Book* F1Book3;
  ControlArray<QLineEdit> Text3{this, "Text3", 5};
  QPlainTextEdit* Text4_1;
  Tidal_Curve* tide_;
  std::array<Filled_Field, 3> filled_;
  Table_Fields fields_;
};

}  // namespace barvon
