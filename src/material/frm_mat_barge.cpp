#include "material/frm_mat_barge.h"

#include <QVBoxLayout>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/number_reading.h"
#include "material/load_stack.h"
#include "material/solids_doubts.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/note_box.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmMatBarge");
enum Page { kLayersPage = 0, kMaterialPage, kCompositionPage, kWaterPage };
enum Option { kSeparation = 0, kJbfc };            // SSCheck1
constexpr int kLayersField = 0, kSolidsField = 1;  // Text1
constexpr int kNoteLines = 7, kPromptLines = 6;
constexpr int kStackLines = 14;  // so that each of six layers has a label
constexpr char kLimitHeading[] = "Liquid Limit";

}  // namespace

frmMatBarge::frmMatBarge(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic, .placement = Screen_Setup::Placement::Centre}),
      record_(Project()),
      Text2(Named(new QLineEdit(this), "Text2")),
      Text4_0(Make_Note_Box("Text4(0)", QStringLiteral("Note on layers"), kNoteLines, this)),
      Text4_1(Make_Note_Box("Text4(1)", QStringLiteral("What to enter"), kPromptLines, this)),
      F1Book1_0(Named(new F1Book(kBookNumbers, this), "F1Book1(0)")),
      F1Book1_1(Named(new F1Book(kBookNumbers, this), "F1Book1(1)")),
      stack_(Named(new Bar_Picture("Composition of the load", "load", this), "LoadStack")),
      fields_(this, Faces_Of(Barge_Fields(), record_)),
      water_(new Water_Panel(QStringLiteral("Compute Dredging Site Water Density From Salinity and "
                                            "Temperature?  Otherwise Specify Density Directly."),
                             true, record_)),
      solids_(new Solids_Panel("F1Book1(2)")),
      tabs_(new Tab_Pages(this)) {
  setWindowTitle(QStringLiteral("Material Description Data - Barge Dredge"));
  tabs_->addTab(Layers_Page(), QStringLiteral("Material Volume and Velocity"));
  tabs_->addTab(Material_Page(), QStringLiteral("Material Properties"));
  tabs_->addTab(Composition_Page(), QStringLiteral("Volumetric Fraction and Moisture Content"));
  tabs_->addTab(Water_Page(), QStringLiteral("Dredging Site Water Density"));
  tabs_->setUsesScrollButtons(false);
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs_, 1);
  column->addLayout(Make_Command1());
  Order_Controls();
  Connect();
}

QWidget* frmMatBarge::Layers_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* count = new QWidget(page);
  Field_Rows rows(count);
  fields_.Add(rows, {"Text1", kLayersField});
  column->addWidget(count);
  F1Book1_0->setAccessibleName(QStringLiteral("Layers"));
  F1Book1_0->SetNumberNote(Real_Note);
  F1Book1_0->SetFocusCell(1);
  column->addWidget(F1Book1_0, 1);
  Text4_0->setPlainText(QStringLiteral(
      "The discharge of the contents of the disposal vessel will be simulated as a\n"
      "sequence of up to 6 discrete portions or layers of the total load, enabling a more \n"
      "realistic description of an actual disposal.  It also facilitates modeling\n"
      "of disposal in shallow water and separation of materials in the vessel.\n"
      "Positive (+) values of velocity represent barge movement from top to bottom in the \n"
      "X-direction and from left to right in the Z-direction."));
  column->addWidget(Text4_0);
  return page;
}

QWidget* frmMatBarge::Material_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* count = new QWidget(page);
  Field_Rows rows(count);
  fields_.Add(rows, {"Text1", kSolidsField});
  column->addWidget(count);
  SSCheck1(kSeparation)->setText(QLatin1String(kSeparationCaption));
  SSCheck1(kJbfc)->setText(QLatin1String(kBargeJbfcCaption));
  for (QCheckBox* box : SSCheck1) column->addWidget(box);
  solids_->Book()->SetFocusCell(1);
  column->addWidget(solids_, 1);
  return page;
}

QWidget* frmMatBarge::Composition_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* frame =
      new QGroupBox(QStringLiteral("Volumetric Concentration and Moisture Content"), page);
  Field_Rows rows(frame);
  F1Book1_1->setAccessibleName(QStringLiteral("Composition of the layers"));
  F1Book1_1->SetNumberNote(Real_Note);
  F1Book1_1->SetFocusCell(1);
  F1Book1_1->Ask_For_All_Rows();
  rows.Whole_Row(F1Book1_1);
  fields_.Add(rows, {"Text2"});
  rows.Whole_Row(Text4_1);
  column->addWidget(frame);
  stack_->setMinimumHeight(kStackLines * fontMetrics().lineSpacing());
  column->addWidget(stack_, 1);
  return page;
}

QWidget* frmMatBarge::Water_Page() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->addWidget(water_);
  water_->Button()->setToolTip(
      QStringLiteral("Computes from the salinity and the temperature of the hopper screen; while "
                     "that is closed, from those of the project"));
  return page;
}

void frmMatBarge::Order_Controls() {
  std::vector<QWidget*> order = {tabs_->tabBar(),
                                 Text1(kLayersField),
                                 F1Book1_0,
                                 Text4_0,
                                 Text1(kSolidsField),
                                 SSCheck1(kSeparation),
                                 SSCheck1(kJbfc),
                                 solids_->List(),
                                 solids_->Book(),
                                 F1Book1_1,
                                 Text2,
                                 Text4_1,
                                 stack_};
  for (QWidget* control : water_->Order()) order.push_back(control);
  Tab_Through(order);
}

void frmMatBarge::Connect() {
  for (int i = 0; i < 2; ++i) {
    connect(Text1(i), &QLineEdit::textChanged, this, [this, i] { Text1_Change(i); });
    connect(SSCheck1(i), &QCheckBox::toggled, this, [this, i] { SSCheck1_Click(i); });
  }
  connect(tabs_, &Tab_Pages::Left, this, [this](int page) { Tab_Left(page); });
  connect(F1Book1_1, &F1Book::Edited, this, [this] {
    Read_Composition(F1Book1_1->table(), record_.JBFCFlag == 1, solids_->state(), moisture_);
    Show_Stack();
  });
}

void frmMatBarge::Opening() {
  tabs_->Start_At(kLayersPage);
  const Barge_Entry entry = Open_Barge(record_);
  fields_.Show(entry.texts);
  water_->Open(entry.water);
  Fill_Layer_Table(record_, F1Book1_0->table());
  SSCheck1(kSeparation)->setChecked(entry.separated);
  SSCheck1(kSeparation)->setEnabled(record_.LAYERS != 1);
  SSCheck1(kJbfc)->setChecked(entry.with_jbfc);
  Enable_Composition();
  Show_Composition(entry.separated);
  Show_Prompt();
  solids_->Open(kBargeLibrary, entry.separated ? kSeparatedLoad : kWholeLoad, record_);
  Open_Composition(record_, solids_->state(), moisture_);
  Define_Composition();
  // A row is meant, but it is the column of that number that gets the heading.
  if (!entry.separated) F1Book1_1->table().ColText(record_.NumSolids + 1, kLimitHeading);
}

void frmMatBarge::Activated() { copy_.Take(Copy_Material(record_)); }

void frmMatBarge::Command1_Click(int index) {
  if (index == kOk) {
    Save();
  } else if (index == kCancel) {
    Reset_Vars(*copy_, record_);
    Unload();
  }
}

void frmMatBarge::Text1_Change(int index) {
  if (FillingForm) return;
  const std::string text = Text1(index)->text().toStdString();
  if (index == kSolidsField) {
    Check_Barge_Solids(text);
  } else if (Check_Barge_Layers(text)) {
    Define_Layer_Table(Layers(), F1Book1_0->table());
    SSCheck1(kSeparation)->setEnabled(Layers() != 1);
  }
}

void frmMatBarge::SSCheck1_Click(int index) {
  if (FillingForm) return;
  const bool on = SSCheck1(index)->isChecked();
  if (index == kSeparation) {
    record_.SeparationFlag = on ? 1 : 0;
    solids_->Separate(on);
  } else {
    record_.JBFCFlag = on ? 1 : 0;
  }
  Enable_Composition();
  // The tables lay themselves out for their new columns and rows first.
  QMetaObject::invokeMethod(
      this, [this] { Fit_To_Contents(); }, Qt::QueuedConnection);
}

void frmMatBarge::Tab_Left(int page) {
  if (page != kCompositionPage) {
    Define_Composition();
    Show_Composition(record_.SeparationFlag != 0 || record_.JBFCFlag != 1);
  }
  if (page == kMaterialPage) Show_Prompt();
}

void frmMatBarge::Show_Prompt() {
  Text4_1->setPlainText(QString::fromStdString(
      Composition_Prompt(SSCheck1(kSeparation)->isChecked(), SSCheck1(kJbfc)->isChecked())));
}

void frmMatBarge::Define_Composition() {
  Define_Book_1(Layers(), record_.JBFCFlag == 1, solids_->state(), moisture_, solids_->table(),
                F1Book1_1->table());
  Show_Stack();
}

void frmMatBarge::Show_Stack() {
  stack_->Show(Load_Stack(Layers(), F1Book1_0->table(), solids_->state(), solids_->table()));
}

void frmMatBarge::Show_Composition(bool shown) {
  F1Book1_1->setVisible(shown);
  Text2->setVisible(!shown);
  fields_.Label({"Text2"})->setVisible(!shown);
}

void frmMatBarge::Enable_Composition() {
  tabs_->setTabEnabled(kCompositionPage,
                       SSCheck1(kSeparation)->isChecked() || SSCheck1(kJbfc)->isChecked());
}

int frmMatBarge::Layers() const { return Layers_Of(Text1(kLayersField)->text().toStdString()); }

std::string frmMatBarge::Doubts() const {
  return Layers_Doubt(Text1(kLayersField)->text().toStdString()) +
         Number_Doubts(F1Book1_0->table(), {1, 1, Layers(), 3}) + solids_->Doubts() +
         Volume_Doubts(solids_->state(), solids_->table(), record_) +
         Composition_Doubts(Layers(), solids_->state(), moisture_, solids_->table());
}

void frmMatBarge::Save() {
  if (!Check_Solids_Table(solids_->table())) return;
  Define_Composition();
  if (!Accept_Doubts(Doubts())) return;
  const Barge_Entry entry{fields_.Texts(), water_->Texts(), SSCheck1(kSeparation)->isChecked(),
                          SSCheck1(kJbfc)->isChecked()};
  if (!Save_Barge_Data(entry, F1Book1_0->table(), moisture_, solids_->state(), solids_->table(),
                       record_)) {
    // The data count as supplied although the screen stays.
    Supply_Screen(kScreen, record_);
    return;
  }
  Unload();
  Accept_Screen(kScreen, record_);
}

}  // namespace barvon
