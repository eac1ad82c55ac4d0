#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <vector>

#include "material/load_water.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"

namespace barvon {

/// "Dredging Site Water Density" of both material screens. What is typed moves SiteDensity at once.
class Water_Panel : public QGroupBox {
  Q_OBJECT

 public:
  /// `held`: a density that follows from what is typed is held to its limits.
  Water_Panel(const QString& question, bool held, ProjectRecord& record);

  /// Opening: the texts as they are, nothing computed, the box off.
  void Open(const Field_Texts& texts);
  Field_Texts Texts() const { return fields_.Texts(); }
  QPushButton* Button() const { return Command1_3; }
  std::vector<QWidget*> Order() const;

 signals:
  /// Salinity or temperature has another text, also while the panel opens.
  void Boxes_Changed();

 private:
  void SSCheck2_Click();
  void Text3_Change();
  void Command1_3_Click();

  ProjectRecord& record_;
  bool held_;
  bool opening_ = false;
  QCheckBox* SSCheck2;
  ControlArray<QLineEdit> Text3{this, "Text3", kLoadWaterFields};
  Table_Fields fields_;
  QPushButton* Command1_3;
};

}  // namespace barvon
