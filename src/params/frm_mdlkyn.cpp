#include "params/frm_mdlkyn.h"

#include <QTabBar>
#include <QVBoxLayout>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/number_text.h"
#include "params/site_plan.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/focus_entry.h"
#include "platform/qt/fields/note_box.h"
#include "platform/qt/fields/wrapping_label.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmMdlkyn");
enum Tab { kDescriptionTab = 0, kZidTab, kOutputTab };
constexpr int kZidNoteLines = 5;

/// The two corners of a rectangle, each below its heading.
void Add_Corners(Field_Rows& rows, Table_Fields& fields, const char* array,
                 const ControlArray<QLineEdit>& lines, const std::array<QLabel*, 2>& headings) {
  rows.Whole_Row(headings[0]);
  for (const int i : {kCornerTop, kCornerLeft}) fields.Add(rows, {array, i});
  rows.Whole_Row(headings[1]);
  for (const int i : {kCornerBottom, kCornerRight}) fields.Add(rows, {array, i});
  // The labels of both corners are the same.
  for (QLineEdit* line : lines) {
    const bool upper = line == lines(kCornerTop) || line == lines(kCornerLeft);
    line->setAccessibleName(
        (upper ? QStringLiteral("Upper left corner: ") : QStringLiteral("Lower right corner: ")) +
        line->accessibleName());
  }
}

}  // namespace

frmMdlkyn::frmMdlkyn(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      shape_(Shape_Of_Evaluation(record_, Is_Led_To(kScreen))),
      Text2(Named(new QLineEdit(this), "Text2")),
      Text3(Make_Note_Box("Text3", QStringLiteral("About the Zone of Initial Dilution"),
                          kZidNoteLines, this)),
      Text6(Named(new QLineEdit(this), "Text6")),
      Check3D1(Named(new QCheckBox(this), "Check3D1")),
      SSTab1(Named(new QTabWidget(this), "SSTab1")),
      mixzone(Named(new QGroupBox(this), "mixzone")),
      plan_(Named(new Plan_Picture(kSitePlanName, kSitePlanFile, this), "SitePlan")),
      fields_(this, Faces_Of(Evaluation_Fields(true), record_)) {
  setWindowTitle(QString::fromStdString(shape_.caption));
  SSTab1->setUsesScrollButtons(false);  // all three have room
  SSTab1->addTab(Description_Tab(), QStringLiteral("Description"));
  SSTab1->addTab(Zid_Tab(), QStringLiteral("Zone of Initial Dilution"));
  SSTab1->addTab(Output_Tab(), QStringLiteral("Transport-Diffusion Output"));
  SSTab1->setTabEnabled(kZidTab, shape_.zid);
  if (!shape_.zid) SSTab1->setTabToolTip(kZidTab, Text3->toPlainText());
  auto* SSFrame1 =
      Named(Wrapping_Label(
                QStringLiteral(
                    "See program help for guidelines on computing the size of the Mixing Zone (for "
                    "Section 404 Analysis ONLY), for options on computing the size of the Zone of "
                    "Initial Dilution and for assistance on Transport-Diffusion output options."),
                this),
            "SSFrame1");
  SSFrame1->setVisible(shape_.size_note);
  auto* column = new QVBoxLayout(this);
  auto* upper = new QHBoxLayout;
  upper->addWidget(SSTab1, 3);
  upper->addWidget(plan_, 2);
  column->addLayout(upper, 1);
  column->addWidget(SSFrame1);
  column->addLayout(Make_Command1({QStringLiteral("OK"), QStringLiteral("C&ancel"),
                                   QStringLiteral("&Help"), QStringLiteral("&Reset")}));
  Order_Controls();
  Connect();
}

QWidget* frmMdlkyn::Description_Tab() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);

  auto* fraGeneral = Named(new QGroupBox(QLatin1String(kTracerFrame), page), "fraGeneral");
  Field_Rows general(fraGeneral);
  for (const int i : {kTracerName, kTracerConcentration, kTracerBackground}) {
    fields_.Add(general, {"Text4", i});
  }
  fraGeneral->setVisible(shape_.tracer);
  column->addWidget(fraGeneral);

  mixzone->setTitle(QString::fromStdString(shape_.boundary_caption));
  Field_Rows rows(mixzone);
  const auto heading = [this](const char* name, const std::string& text) {
    return Named(Wrapping_Label(QString::fromStdString(text), mixzone), name);
  };
  Add_Corners(rows, fields_, "Text", Text,
              {heading("Label(0)", shape_.upper_left), heading("Label(3)", shape_.lower_right)});
  for (const int i : {kLimit, kContaminantName}) fields_.Add(rows, {"Text1", i});
  // The labels of both are Label1(2), of which the evaluation shows one at most.
  for (const Control_Name& control : {Control_Name{"Text1", kInSediment}, Control_Name{"Text2"}}) {
    QLabel* label = fields_.Add(rows, control);
    if (label->isHidden()) label->setObjectName(QString());
  }
  fields_.Add(rows, {"Text1", kBackground});
  column->addWidget(mixzone);
  column->addStretch();
  return page;
}

QWidget* frmMdlkyn::Zid_Tab() {
  auto* zid = Named(new QWidget(this), "zid");
  auto* column = new QVBoxLayout(zid);
  Text3->setPlainText(QString::fromStdString(shape_.zid_note));
  column->addWidget(Text3);
  auto* SSFrame2 = Named(new QGroupBox(zid), "SSFrame2");
  SSFrame2->setAccessibleName(QStringLiteral("Zone of Initial Dilution"));
  Field_Rows rows(SSFrame2);
  Check3D1->setText(QLatin1String(kZidCaption));
  rows.Whole_Row(Check3D1);
  const auto heading = [SSFrame2](const QString& text) { return Wrapping_Label(text, SSFrame2); };
  Add_Corners(rows, fields_, "Text5", Text5,
              {heading(QLatin1String(kZidUpperLeft)), heading(QLatin1String(kZidLowerRight))});
  fields_.Add(rows, {"Text6"});
  SSFrame2->setVisible(shape_.zid);
  column->addWidget(SSFrame2);
  column->addStretch();
  return zid;
}

QWidget* frmMdlkyn::Output_Tab() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* fraLTD = Named(new QGroupBox(page), "fraLTD");
  fraLTD->setAccessibleName(QStringLiteral("Transport-Diffusion Output"));
  Field_Rows rows(fraLTD);
  fields_.Add(rows, {"Text8", kOutputCount});
  rows.Whole_Row(Wrapping_Label(QLatin1String(kOutputDepthsCaption), fraLTD));
  for (int i = 0; i < kMaxOutputDepths; ++i) fields_.Add(rows, {"Text8", i});
  column->addWidget(fraLTD);
  column->addStretch();
  return page;
}

void frmMdlkyn::Order_Controls() {
  std::vector<QWidget*> order = {SSTab1->tabBar(), Text4(kTracerName), Text4(kTracerConcentration),
                                 Text4(kTracerBackground)};
  order.insert(order.end(), Text.begin(), Text.end());
  order.insert(order.end(), {Text1(kLimit), Text1(kContaminantName), Text1(kInSediment), Text2,
                             Text1(kBackground), Text3, Check3D1});
  order.insert(order.end(), Text5.begin(), Text5.end());
  order.insert(order.end(), {Text6, Text8(kOutputCount)});
  for (int i = 0; i < kMaxOutputDepths; ++i) order.push_back(Text8(i));
  order.push_back(plan_);
  Tab_Through(order);
}

void frmMdlkyn::Connect() {
  connect(Check3D1, &QCheckBox::clicked, this, [this] { Check3D1_Click(); });
  for (int i = 0; i < kOutputFields; ++i) {
    connect(Text8(i), &QLineEdit::textChanged, this, [this, i] { Text8_Change(i); });
  }
  for (int i = 0; i < kCornerFields; ++i) {
    for (const auto& [array, field] : {std::pair{"Text", Text(i)}, {"Text5", Text5(i)}}) {
      connect(field, &QLineEdit::textChanged, this, [this] { Show_Site(); });
      When_Focused(field, [this, corner = Corner_Of({array, i})] { Choose_Corner(corner); });
    }
  }
  connect(SSTab1, &QTabWidget::currentChanged, this, &frmMdlkyn::Choose_Corner_Of_Tab);
  connect(plan_, &Plan_Picture::Point_Chosen, this, &frmMdlkyn::Plan_Clicked);
  When_Left(Text8(kOutputCount), {Command1(kOk), Command1(kCancel), Command1(kHelp)}, [this] {
    if (!Entered_Output_Count(Text8(kOutputCount)->text().toStdString())) Tell_Count();
  });
}

void frmMdlkyn::Opening() {
  Hold_Output_Count(record_);
  copy_ = {};
  told_count_ = false;
  SSTab1->setCurrentIndex(kDescriptionTab);
  Field_Texts texts = Fill_Fields(Evaluation_Fields(true), record_);
  texts("Text8", kOutputCount) = Output_Count_Text(record_);
  fields_.Show(texts);
  Check3D1->setChecked(record_.ZidFlag == 1);
  Check3D1_Click();
  Show_Or_Hide_Boundary();
}

void frmMdlkyn::Opened_Again() {
  if (!Is_Led_To(kScreen)) return;
  SSTab1->setCurrentIndex(kDescriptionTab);
  if (shape_.boundary) return;
  shape_.boundary = true;
  Show_Or_Hide_Boundary();
  Fit_To_Contents();
}

void frmMdlkyn::Show_Or_Hide_Boundary() {
  mixzone->setVisible(shape_.boundary);
  plan_->Set_Takes(shape_.boundary ? Plan_Picture::Takes::points : Plan_Picture::Takes::nothing);
  Choose_Corner({});
  Show_Site();
}

void frmMdlkyn::Command1_Click(int index) {
  switch (index) {
    case kOk:
      Save();
      break;
    case kCancel:
      Reset_Vars(copy_, record_);
      Unload();
      break;
    default:  // Reset does nothing
      break;
  }
}

void frmMdlkyn::Check3D1_Click() {
  const bool wanted = Check3D1->isChecked();
  // While it fills itself, the screen has nothing to tell the record.
  if (!FillingForm) Choose_Zid(wanted, copy_, record_);
  for (QLineEdit* corner : Text5) corner->setEnabled(wanted);
  Text6->setEnabled(wanted);
  // Its corners have no fields to go to any more.
  if (!wanted && corner_.top.array == "Text5") Choose_Corner({});
  Choose_Corner_Of_Tab();
  Show_Site();
}

void frmMdlkyn::Text8_Change(int index) {
  if (index == kOutputCount) {
    told_count_ = false;
    Lock_Depths();
  }
  if (FillingForm) return;
  if (index == kOutputCount) {
    Take_Output_Count(Text8(kOutputCount)->text().toStdString(), copy_, record_);
  } else {
    Take_Output_Depth(index, fields_.Texts(), copy_, record_);
  }
}

void frmMdlkyn::Lock_Depths() {
  const auto count = Entered_Output_Count(Text8(kOutputCount)->text().toStdString());
  if (!count) return;
  for (int i = 0; i < kMaxOutputDepths; ++i) {
    const bool locked = i >= *count;
    Text8(i)->setReadOnly(locked);
    QPalette look = palette();
    if (locked) look.setColor(QPalette::Base, look.color(QPalette::Window));
    Text8(i)->setPalette(look);
  }
}

void frmMdlkyn::Choose_Corner(const Plan_Corner& corner) {
  corner_ = corner;
  if (!shape_.boundary) return;
  plan_->Set_Caption(
      QStringLiteral("A click puts %1.").arg(QString::fromStdString(Words_Of(corner, record_))));
}

/// The plan offers a corner of the rectangle whose tab is in front; of the rectangle that it offers
/// already the corner stays.
void frmMdlkyn::Choose_Corner_Of_Tab() {
  std::string_view array = corner_.top.array;
  if (SSTab1->currentIndex() == kDescriptionTab) array = "Text";
  if (SSTab1->currentIndex() == kZidTab && Check3D1->isChecked()) array = "Text5";
  if (corner_.top.array != array) Choose_Corner(Corner_Of({array, kCornerTop}));
}

void frmMdlkyn::Plan_Clicked(const Feet_Point& point) {
  if (!Agrees_To_Put(Words_Of(corner_, record_), point)) return;
  const ControlArray<QLineEdit>& lines = corner_.top.array == "Text5" ? Text5 : Text;
  Enter_Text(lines(corner_.top.index), QString::fromStdString(Plain_Number(point.x)));
  Enter_Text(lines(corner_.left.index), QString::fromStdString(Plain_Number(point.z)));
}

void frmMdlkyn::Show_Site() {
  plan_->Show(Draw_Site(Entered_Site(Input(), shape_.boundary, record_)));
}

/// Whether OK may take the number of depths. One out of range is told by OK itself first; given
/// once more as it stands, it is meant.
bool frmMdlkyn::Accepts_Count() {
  if (told_count_ || Entered_Output_Count(Text8(kOutputCount)->text().toStdString())) return true;
  told_count_ = true;
  Tell_Count();
  return false;
}

void frmMdlkyn::Tell_Count() {
  Tell_Output_Count();
  SSTab1->setCurrentIndex(kOutputTab);
  Text8(kOutputCount)->setFocus(Qt::OtherFocusReason);
  Text8(kOutputCount)->selectAll();
}

void frmMdlkyn::Save() {
  if (!Accepts_Count()) return;
  Save_Evaluation(Input(), shape_.boundary, record_);
  Unload();
  Accept_Screen(kScreen, record_);
}

Evaluation_Input frmMdlkyn::Input() const { return {fields_.Texts(), Check3D1->isChecked()}; }

}  // namespace barvon
