#include <QIcon>
#include <QVBoxLayout>
#include <cmath>
#include <iterator>
#include <vector>

#include "core/desk/screen_table.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"
#include "site/frm_velocity.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmVelocity");
constexpr QSize kIllustration{220, 160};
constexpr QSize kFieldTable{300, 260};
constexpr QSize kSmallestPicture{440, 250};
constexpr int kNoteLines = 4;

struct Form_Texts {
  const char* frame;
  const char* illustration;
};
constexpr Form_Texts kForms[] = {
    {"Average Velocity", "velocity_average"},
    {"2-Point Profile", "velocity_two_point"},
    {"Variable Velocity Field", "velocity_field"},
    {"Unsteady Velocity Profile", "velocity_tidal"},
};
static_assert(std::size(kForms) == kVelocityForms);

QWidget* Column_Without_Margins() {
  auto* part = new QWidget;
  (new QVBoxLayout(part))->setContentsMargins(0, 0, 0, 0);
  return part;
}

}  // namespace

frmVelocity::frmVelocity(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      Label5(Named(new QLabel(this), "Label5")),
      forms_(new Scrolled_Part(Column_Without_Margins(), this)),
      Check3D1(Named(new QCheckBox(this), "Check3D1")),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      profile_(Named(new Two_Point_Profile(this), "TwoPointProfile")),
      F1Book2(this, "F1Book2", kDirections, 0, kBookNumbers),
      arrows_(Named(new Velocity_Arrows(this), "VelocityArrows")),
      F1Book3(Named(new F1Book(kBookNumbers, this), "F1Book3")),
      tide_(Named(new Tidal_Curve(this), "TidalCurve")) {
  setWindowTitle(QStringLiteral("Velocity Profile Data"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(Choice_Part());
  QFont bold = Label5->font();
  bold.setBold(true);
  Label5->setFont(bold);
  column->addWidget(Label5);
  for (int form = 0; form < kVelocityForms; ++form) {
    Frame3D(form)->setTitle(QLatin1String(kForms[form].frame));
    Frame3D(form)->hide();
    forms_->widget()->layout()->addWidget(Frame3D(form));
  }
  column->addWidget(forms_, 1);
  Build_Single_Frame();
  Build_Two_Point_Frame();
  Build_Field_Frame();
  Build_Unsteady_Frame();
  column->addLayout(Note_Row());
  column->addLayout(Make_Command1());
  Set_Tab_Order();
  Connect();
}

QWidget* frmVelocity::Choice_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  auto* frame = new QGroupBox(QStringLiteral("Type of Velocity"), part);
  auto* options = new QVBoxLayout(frame);
  options->addStretch();
  for (int form = 0; form < kVelocityForms; ++form) {
    Option3D1(form)->setText(QLatin1String(Option_Of_Form(Velocity_Form(form))));
    options->addWidget(Option3D1(form));
  }
  options->addStretch();
  row->addWidget(frame, 1);
  for (int form = 0; form < kVelocityForms; ++form) {
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(kForms[form].illustration);
    Picture1(form)->setPixmap(QIcon(file).pixmap(kIllustration));
    Picture1(form)->setFixedSize(kIllustration);
    Picture1(form)->setAccessibleName(QLatin1String(Name_Of_Form(Velocity_Form(form))));
    Picture1(form)->hide();
    row->addWidget(Picture1(form));
  }
  part->setMinimumHeight(kIllustration.height());
  return part;
}

void frmVelocity::Build_Single_Frame() {
  Field_Rows rows(Frame3D(kSingleForm));
  constexpr const char* kLabels[] = {"Depth at location (ft)", "X-Direction Velocity (fps)",
                                     "Z-Direction Velocity (fps)"};
  for (int i = 0; i <= Text1.last(); ++i) rows.Number(kLabels[i], Text1(i), Note(filled1_[At(i)]));
  Check3D1->setText(QStringLiteral("Do you wish a Logarithmic Profile to be employed?"));
  rows.Whole_Row(Check3D1);
  rows.layout()->setRowStretch(rows.layout()->rowCount(), 1);
}

void frmVelocity::Build_Two_Point_Frame() {
  auto* row = new QHBoxLayout(Frame3D(kTwoPointForm));
  auto* column = new QVBoxLayout;
  row->addLayout(column);
  row->addWidget(profile_, 1);
  profile_->setMinimumSize(kSmallestPicture);
  F1Book1->setAccessibleName(QStringLiteral("Two-point velocity profile"));
  F1Book1->SetFocusCell(1, 1);
  F1Book1->SetNumberNote(Real_Note);
  column->addWidget(F1Book1);
  Label3(0)->setText(QStringLiteral("Constant Water Depth Must Be Specified in Site Data "));
  Label3(1)->setText(QStringLiteral("X - Direction Velocity (+) is from top to bottom"));
  Label3(2)->setText(QStringLiteral("Z - Direction Velocity (+) is from left to right"));
  for (const int i : {1, 2, 0}) column->addWidget(Label3(i));
  column->addStretch();
}

void frmVelocity::Build_Field_Frame() {
  auto* row = new QHBoxLayout(Frame3D(kFieldForm));
  for (int i = 0; i < kDirections; ++i) row->addWidget(Build_Field(i), 1);
  row->addWidget(arrows_, 1);
}

QWidget* frmVelocity::Build_Field(int i) {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  const QString axis = QLatin1String(kAxes[i]);
  auto* entries = new QWidget(part);
  Field_Rows rows(entries);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  Check3D2(i)->setText(
      QStringLiteral("Initialize the %1-Direction Velocity field to a constant?").arg(axis));
  rows.Whole_Row(Check3D2(i));
  rows.Number("Constant Velocity to be Used (fps)", Text2(i), Real_Note)
      ->setObjectName(QStringLiteral("Label2"));
  Enable_Constant(i, false);
  column->addWidget(entries);
  F1Book2(i)->setAccessibleName(QStringLiteral("%1-Direction velocity field").arg(axis));
  F1Book2(i)->setMinimumSize(kFieldTable);
  F1Book2(i)->SetFocusCell(1, 1);
  F1Book2(i)->SetNumberNote(Real_Note);
  column->addWidget(F1Book2(i), 1);
  auto* buttons = new QHBoxLayout;
  const std::string what = std::string(kAxes[i]) + "-Direction Velocities";
  const Grid_Csv_Texts texts =
      i == kAlongX
          ? Grid_Csv_Texts{"Field(0)", "&Import X...", "&Export X...", what, "x-velocities.csv"}
          : Grid_Csv_Texts{"Field(1)", "I&mport Z...", "E&xport Z...", what, "z-velocities.csv"};
  csv_.emplace_back(part, F1Book2(i), texts, [this, i] {
    // A constant that stays behind would cover what was read at the next opening.
    Check3D2(i)->setChecked(false);
    Check3D2_Click(i);
  });
  buttons->addWidget(csv_.back().Import);
  buttons->addWidget(csv_.back().Export);
  buttons->addStretch();
  column->addLayout(buttons);
  return part;
}

void frmVelocity::Build_Unsteady_Frame() {
  auto* row = new QHBoxLayout(Frame3D(kUnsteadyForm));
  F1Book3->setAccessibleName(QStringLiteral("Unsteady velocity profile"));
  F1Book3->SetNumberNote(Real_Note);
  row->addWidget(F1Book3);
  tide_->setMinimumSize(kSmallestPicture);
  auto* right = new QVBoxLayout;
  auto* entries = new QWidget(Frame3D(kUnsteadyForm));
  Field_Rows rows(entries);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  rows.Number("Start Time Within Velocity Profile (Hrs)", Text3(kStart), Note(filled3_[kStart]));
  rows.Number("Depth Where Velocity Profile is Applied (Ft)", Text3(kDepth),
              Note(filled3_[kDepth]));
  rows.Number("Simulation Duration (Hrs)", Text3(kDuration), Note(filled3_[kDuration]));
  rows.Shown("Average X-Velocity (Ft/Sec)", Text3(kAverageX));
  rows.Shown("Average Z-Velocity (Ft/Sec)", Text3(kAverageZ));
  for (const int i : {kAverageX, kAverageZ}) Text3(i)->setToolTip(QStringLiteral("OK computes it"));
  tide_->Set_Caption(QStringLiteral("Averages as OK computes them"));
  right->addWidget(entries);
  right->addWidget(tide_, 1);
  row->addLayout(right, 1);
}

QLayout* frmVelocity::Note_Row() {
  auto* row = new QHBoxLayout;
  for (QPlainTextEdit* note : Text4) {
    note->setReadOnly(true);
    note->setTabChangesFocus(true);
    const double room = 2 * (note->document()->documentMargin() + note->frameWidth());
    note->setFixedHeight(note->fontMetrics().lineSpacing() * kNoteLines +
                         static_cast<int>(std::ceil(room)));
  }
  Text4(0)->setAccessibleName(QStringLiteral("Note on directions"));
  Text4(1)->setAccessibleName(QStringLiteral("Simulated interval in hours"));
  Text4(1)->hide();
  row->addWidget(Text4(0), 3);
  row->addWidget(Text4(1), 1);
  return row;
}

void frmVelocity::Set_Tab_Order() {
  std::vector<QWidget*> order(Option3D1.begin(), Option3D1.end());
  order.insert(order.end(), Text1.begin(), Text1.end());
  order.insert(order.end(), {Check3D1, F1Book1, profile_});
  for (int i = 0; i < kDirections; ++i) {
    order.insert(order.end(), {Check3D2(i), Text2(i), F1Book2(i), csv_[i].Import, csv_[i].Export});
  }
  order.insert(order.end(), {arrows_, F1Book3});
  order.insert(order.end(), Text3.begin(), Text3.end());
  order.insert(order.end(), {tide_, Text4(0), Text4(1)});
  Tab_Through(order);
}

}  // namespace barvon
