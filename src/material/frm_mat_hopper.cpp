#include "material/frm_mat_hopper.h"

#include <QVBoxLayout>
#include <vector>

#include "core/desk/accepted_screen.h"
#include "core/keys.h"
#include "material/open_hopper_boxes.h"
#include "material/solids_doubts.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/note_box.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmMatHopper");
constexpr int kNoteLines = 5;

}  // namespace

frmMatHopper::frmMatHopper(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic, .placement = Screen_Setup::Placement::Centre}),
      record_(Project()),
      Text1(Named(new QLineEdit(this), "Text1")),
      SSCheck1(Named(new QCheckBox(kHopperJbfcCaption, this), "SSCheck1")),
      Text4_1(
          Make_Note_Box("Text4(1)", QStringLiteral("Note on moisture content"), kNoteLines, this)),
      fields_(this, Faces_Of(Hopper_Fields(), record_)),
      water_(new Water_Panel(
          QStringLiteral("Compute Dredging Site Water Density From Salinity and Temperature?"),
          false, record_)),
      solids_(new Solids_Panel("F1Book1")),
      tabs_(new Tab_Pages(this)) {
  setWindowTitle(QStringLiteral("Material Description Data - Hopper Dredge"));
  tabs_->addTab(General_Page(), QStringLiteral("General and Site Water Density"));
  tabs_->addTab(Material_Page(), QStringLiteral("&Material Properties"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs_, 1);
  column->addLayout(Make_Command1());
  std::vector<QWidget*> order = {tabs_->tabBar(), Text2(0), SSCheck1, Text1, Text4_1};
  for (QWidget* control : water_->Order()) order.push_back(control);
  order.insert(order.end(), {Text2(1), solids_->List(), solids_->Book()});
  Tab_Through(order);
  Connect();
}

frmMatHopper::~frmMatHopper() {
  if (boxes_are_told_) Set_Open_Hopper_Boxes({});
}

QWidget* frmMatHopper::General_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* frame = new QGroupBox(QStringLiteral("General Information"), page);
  Field_Rows rows(frame);
  fields_.Add(rows, {"Text2", 0});
  rows.Whole_Row(SSCheck1);
  fields_.Add(rows, {"Text1"});
  Text4_1->setPlainText(
      QStringLiteral("The moisture content is expressed as a multiple \n"
                     "of the liquid limit.  For example, if the liquid limit \n"
                     "is 60% and the moisture content is 150%, then \n"
                     "the multiple that should be supplied is 2.5."));
  rows.Whole_Row(Text4_1);
  column->addWidget(frame);
  column->addWidget(water_, 1);
  return page;
}

QWidget* frmMatHopper::Material_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* count = new QWidget(page);
  Field_Rows rows(count);
  fields_.Add(rows, {"Text2", 1});
  column->addWidget(count);
  column->addWidget(solids_, 1);
  solids_->Book()->SetFocusCell(kRowBase + 1);
  return page;
}

void frmMatHopper::Connect() {
  connect(SSCheck1, &QCheckBox::toggled, this, [this] { SSCheck1_Click(); });
  connect(Text2(1), &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!FillingForm) Check_Hopper_Solids(text.toStdString());
  });
  connect(water_, &Water_Panel::Boxes_Changed, this, [this] { Tell_Boxes(); });
  connect(this, &QDialog::finished, this, [this] {
    Set_Open_Hopper_Boxes({});
    boxes_are_told_ = false;
  });
}

void frmMatHopper::Opening() {
  tabs_->Start_At(0);
  const Hopper_Entry entry = Open_Hopper(record_);
  fields_.Show(entry.texts);
  water_->Open(entry.water);
  solids_->Open(kHopperLibrary, kHopperLoad, record_);
  Show_By_Method();
  SSCheck1->setChecked(entry.SSCheck1);
}

void frmMatHopper::Show_By_Method() {
  // Any other method leaves them as they stand.
  if (record_.DisposalMethod != kHopper && record_.DisposalMethod != kContinuous) return;
  const bool shown = record_.DisposalMethod == kHopper;
  fields_.Label({"Text2", 0})->setVisible(shown);
  Text2(0)->setVisible(shown);
  SSCheck1->setVisible(shown);
  Show_Moisture(shown);
}

void frmMatHopper::Show_Moisture(bool shown) {
  fields_.Label({"Text1"})->setVisible(shown);
  Text1->setVisible(shown);
}

void frmMatHopper::Activated() { copy_.Take(Copy_Material(record_)); }

void frmMatHopper::Command1_Click(int index) {
  if (index == kOk) {
    Save();
  } else if (index == kCancel) {
    Reset_Vars(*copy_, record_);
    Unload();
  }
}

void frmMatHopper::SSCheck1_Click() {
  if (FillingForm) return;
  const bool used = SSCheck1->isChecked();
  Show_Moisture(used);
  const Field_Texts texts = fields_.Texts();
  if (used && texts.Is_Untouched({"Text1"})) fields_.Show(Moisture_Text(record_));
}

void frmMatHopper::Tell_Boxes() {
  const Field_Texts texts = water_->Texts();
  const auto number = [&](Water_Field field) {
    return Entered_Number(Water_Fields(), {"Text3", field}, texts, record_);
  };
  Set_Open_Hopper_Boxes(Hopper_Boxes{number(kLoadSalinity), number(kLoadTemperature)});
  boxes_are_told_ = true;
}

void frmMatHopper::Save() {
  if (!Check_Solids_Table(solids_->table())) return;
  const Hopper_Entry entry{fields_.Texts(), water_->Texts(), SSCheck1->isChecked()};
  if (!Accept_Doubts(Moisture_Doubt(entry, record_) + solids_->Doubts())) return;
  if (!Save_Data(entry, solids_->state(), solids_->table(), record_)) {
    // The data count as supplied although the screen stays.
    Supply_Screen(kScreen, record_);
    return;
  }
  Unload();
  Accept_Screen(kScreen, record_);
}

}  // namespace barvon
