#include "params/frm_operation.h"

#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmOperation");

}  // namespace

frmOperation::frmOperation(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      Text2(Named(new QLineEdit(this), "Text2")),
      Check3D1(Named(new QCheckBox(this), "Check3D1")),
      Frame3D1(Named(new QGroupBox(kVelocityFrame, this), "Frame3D1")),
      Frame3D2(Named(new QGroupBox(kDepressionFrame, this), "Frame3D2")),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      remark_(new QLabel(this)),
      plan_(Named(new Plan_Picture(kSitePlanName, kSitePlanFile, this), "SitePlan")),
      fields_(this, Faces_Of(Operation_Fields(), record_)) {
  Fill_Frames();
  auto* entries = new QVBoxLayout;
  entries->addWidget(Fields());
  entries->addWidget(Frame3D1);
  entries->addStretch();
  auto* site = new QVBoxLayout;
  site->addWidget(Frame3D2);
  site->addWidget(plan_, 1);
  auto* halves = new QHBoxLayout;
  halves->addLayout(entries, 1);
  halves->addLayout(site, 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(halves, 1);
  column->addLayout(Make_Command1());

  std::vector<QWidget*> order(Text1.begin(), Text1.end());
  order.insert(order.end(), {Text2, F1Book1});
  order.insert(order.end(), Text4.begin(), Text4.end());
  order.push_back(Check3D1);
  order.insert(order.end(), Text3.begin(), Text3.end());
  order.push_back(plan_);
  Tab_Through(order);
  Connect();
}

QWidget* frmOperation::Fields() {
  auto* part = new QGroupBox(this);
  Field_Rows rows(part);
  for (int i = 0; i < kOperationFields; ++i) fields_.Add(rows, {"Text1", i});
  fields_.Add(rows, {"Text2"});
  remark_->setWordWrap(true);
  rows.Whole_Row(remark_);
  for (int i = 0; i < kPipelineFields; ++i) fields_.Add(rows, {"Text4", i});
  return part;
}

void frmOperation::Fill_Frames() {
  F1Book1->setAccessibleName(Frame3D1->title());
  F1Book1->SetNumberNote(Real_Note);
  F1Book1->Ask_For_Rows(kMaxLayers);
  (new QVBoxLayout(Frame3D1))->addWidget(F1Book1);
  Check3D1->setText(QStringLiteral("Dumping over a Depression?"));
  Field_Rows rows(Frame3D2);
  rows.Whole_Row(Check3D1);
  for (int i = 0; i < kDepressionFields; ++i) fields_.Add(rows, {"Text3", i});
  plan_->Set_Takes(Plan_Picture::Takes::points);
}

void frmOperation::Connect() {
  const auto follow = [this](QLineEdit* field) {
    connect(field, &QLineEdit::textChanged, this, [this] { Show_Plan(); });
  };
  std::for_each(Text1.begin(), Text1.end(), follow);
  std::for_each(Text3.begin(), Text3.end(), follow);
  std::for_each(Text4.begin(), Text4.end(), follow);
  connect(Text2, &QLineEdit::textChanged, this, [this] { Text2_Change(); });
  connect(F1Book1, &F1Book::Edited, this, [this] { Show_Plan(); });
  connect(Check3D1, &QCheckBox::clicked, this, [this] { Check3D1_Click(); });
  connect(plan_, &Plan_Picture::Point_Chosen, this, &frmOperation::Point_Chosen);
}

void frmOperation::Opening() {
  Store_Wizard_Method(record_);
  Hold_Openings(record_);
  copy_ = {};
  copy_.SSCheck3 = Port().board.depression_box();
  setWindowTitle(QString::fromStdString(Operation_Caption(record_)));
  fields_.Follow(Faces_Of(Operation_Fields(), record_));
  fields_.Show(Fill_Fields(Operation_Fields(), record_));
  Fill_Velocities(record_, F1Book1->table());
  remark_->setVisible(Has_Openings(record_));
  Frame3D1->setVisible(Has_Openings(record_));
  Frame3D2->setVisible(Has_Vessel(record_));
  Set_Check(Has_Depression(record_));
}

void frmOperation::Command1_Click(int index) {
  if (index == kOk) {
    Save();
  } else if (index == kCancel) {
    Reset_Vars(copy_, record_);
    Port().board.show_depression_box(copy_.SSCheck3);
    Unload();
  }
}

void frmOperation::Set_Check(bool checked) {
  Check3D1->setChecked(checked);
  Check3D1_Click();
}

void frmOperation::Check3D1_Click() {
  const bool checked = Check3D1->isChecked();
  Port().board.show_depression_box(checked);
  for (QLineEdit* field : Text3) field->setEnabled(checked);
  Frame3D1->setEnabled(!checked);
  Show_Plan();
}

void frmOperation::Text2_Change() {
  const std::string typed = Text2->text().toStdString();
  const std::string shown = FillingForm ? typed : Take_Openings(typed, F1Book1->table());
  if (shown != typed) {
    const int cursor = Text2->cursorPosition();
    const QSignalBlocker quiet(Text2);
    Text2->setText(QString::fromStdString(shown));
    Text2->setCursorPosition(cursor);
  }
  Show_Plan();
}

void frmOperation::Point_Chosen(const Feet_Point& point) {
  if (!Agrees_To_Put("the vessel", point)) return;
  Enter_Text(Text1(kPlaceFromTop), QString::fromStdString(Place_Text(point.x)));
  Enter_Text(Text1(kPlaceFromLeft), QString::fromStdString(Place_Text(point.z)));
}

void frmOperation::Save() {
  const Operation_Result result = Save_Operation(Entry(), copy_, F1Book1->table(), record_);
  if (result.CanClose) {
    Unload();
    Accept_Screen(kScreen, record_);
    return;
  }
  if (result.refused) {
    auto* field = findChild<QLineEdit*>(QString::fromStdString(result.refused->Reference()));
    field->setFocus();
    field->selectAll();
    return;
  }
  fields_.Set_Filled(Fill_Fields(Operation_Fields(), record_));
  if (result.Check3D1 != Check3D1->isChecked()) Set_Check(result.Check3D1);
}

Operation_Entry frmOperation::Entry() const { return {fields_.Texts(), Check3D1->isChecked()}; }

void frmOperation::Show_Plan() {
  const std::string remark = Openings_Remark(Text2->text().toStdString());
  // A blank keeps the line's room, so that nothing moves while a number is typed.
  remark_->setText(remark.empty() ? QStringLiteral(" ") : QString::fromStdString(remark));
  plan_->Show(Draw_Site(Entered_Site(Entry(), F1Book1->table(), record_)));
}

}  // namespace barvon
