#include "site/frm_velocity.h"

#include <QIcon>
#include <QPixmapCache>
#include <QVBoxLayout>

#include "core/desk/accepted_screen.h"
#include "core/desk/analysis_choices.h"
#include "core/desk/screen_register.h"
#include "platform/qt/fields/note_box.h"
#include "platform/qt/fields/option_paint.h"
#include "site/average_panel.h"
#include "site/field_panel.h"
#include "site/tidal_panel.h"
#include "site/two_point_panel.h"
#include "site/velocity_questions.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmVelocity");
constexpr int kOkWithoutButton = 3, kGridWithoutButton = 4;
constexpr QSize kIllustration{220, 160};

/// Drawn once and kept: drawing the four takes longer than filling a form.
QPixmap Illustration(const char* name) {
  const QString file = QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name));
  QPixmap picture;
  if (!QPixmapCache::find(file, &picture)) {
    picture = QIcon(file).pixmap(kIllustration);
    QPixmapCache::insert(file, picture);
  }
  return picture;
}

}  // namespace

frmVelocity::frmVelocity(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      panels_{new Average_Panel(record_), new Two_Point_Panel(record_), new Field_Panel(record_),
              new Tidal_Panel(record_)},
      Label5(Named(new QLabel(this), "Label5")),
      Text4_0(Make_Note_Box("Text4(0)", QStringLiteral("Note on directions"), kVelocityNoteLines,
                            this)) {
  setWindowTitle(QStringLiteral("Velocity Profile Data"));
  auto* column = new QVBoxLayout(this);
  auto* panels = new QWidget;
  auto* panel_column = new QVBoxLayout(panels);
  panel_column->setContentsMargins(0, 0, 0, 0);
  for (std::size_t form = 0; form < panels_.size(); ++form) {
    panels_[form]->setObjectName(QStringLiteral("Frame3D(%1)").arg(form));
    panels_[form]->hide();
    panel_column->addWidget(panels_[form]);
  }
  column->addWidget(Choice_Part());
  QFont bold = Label5->font();
  bold.setBold(true);
  Label5->setFont(bold);
  column->addWidget(Label5);
  column->addWidget(new Scrolled_Part(panels, this), 1);
  column->addLayout(Note_Row());
  column->addLayout(Make_Command1());
  Order_Controls();
}

QWidget* frmVelocity::Choice_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  auto* frame = new QGroupBox(QLatin1String(kVelocityTypeFrame), part);
  auto* options = new QVBoxLayout(frame);
  options->addStretch();
  row->addWidget(frame, 1);
  for (int form = 0; form < kVelocityForms; ++form) {
    Option3D1(form)->setText(QLatin1String(Option_Of_Form(Velocity_Form(form))));
    options->addWidget(Option3D1(form));
    connect(Option3D1(form), &QRadioButton::clicked, this, [this, form] { Option3D1_Click(form); });
    Picture1(form)->setPixmap(
        Illustration(panels_[static_cast<std::size_t>(form)]->Illustration()));
    Picture1(form)->setFixedSize(kIllustration);
    Picture1(form)->setAccessibleName(QLatin1String(Name_Of_Form(Velocity_Form(form))));
    Picture1(form)->hide();
    row->addWidget(Picture1(form));
  }
  options->addStretch();
  part->setMinimumHeight(kIllustration.height());
  return part;
}

QLayout* frmVelocity::Note_Row() {
  auto* row = new QHBoxLayout;
  row->addWidget(Text4_0, 3);
  for (const Velocity_Panel* panel : panels_) {
    if (panel->Note() == nullptr) continue;
    panel->Note()->hide();
    row->addWidget(panel->Note(), 1);
  }
  return row;
}

void frmVelocity::Order_Controls() {
  std::vector<QWidget*> order(Option3D1.begin(), Option3D1.end());
  for (const Velocity_Panel* panel : panels_) {
    const std::vector<QWidget*> controls = panel->Order();
    order.insert(order.end(), controls.begin(), controls.end());
  }
  order.push_back(Text4_0);
  for (const Velocity_Panel* panel : panels_) {
    if (panel->Note() != nullptr) order.push_back(panel->Note());
  }
  Tab_Through(order);
}

Velocity_Panel* frmVelocity::Panel() const {
  const Velocity_Form form = Form_Of_Type(record_.VelocityProfileType);
  return form == kNoForm ? nullptr : panels_.at(static_cast<std::size_t>(form));
}

void frmVelocity::Opening() {
  record_.VelocityProfileType = Type_From_Wizard(record_);
  const Velocity_Form form = Form_Of_Type(record_.VelocityProfileType);
  if (form == kNoForm) {
    Show_Form();
  } else {
    Choose(form);
  }
  if (record_.WizardActive == kFalse) return;
  for (Velocity_Panel* panel : panels_) panel->Show_Wizard();
}

void frmVelocity::Activated() { copy_.Take(Copy_Velocity(record_)); }

void frmVelocity::Command1_Click(int index) {
  switch (index) {
    case kOk:
    case kOkWithoutButton:
      Save();
      break;
    case kCancel:
      Reset_Vars(*copy_, record_);
      Unload();
      break;
    case kGridWithoutButton:
      Unload();
      Open_Screen(Row_Of_Screen("frmGridDescrip"), Opens_Blocking(record_));
      break;
    default:
      break;
  }
}

void frmVelocity::Option3D1_Click(int index) {
  const auto form = static_cast<Velocity_Form>(index);
  // Filling the form that stands would throw away what was typed in it.
  if (form == Form_Of_Type(record_.VelocityProfileType)) return;
  record_.VelocityProfileType = Type_Of_Form(form);
  Choose(form);
}

void frmVelocity::Choose(Velocity_Form form) {
  Show_Option(Option3D1, form);
  Label5->setText(QLatin1String(Name_Of_Form(form)));
  for (int i = 0; i < kVelocityForms; ++i) {
    Velocity_Panel& panel = *panels_[static_cast<std::size_t>(i)];
    const bool chosen = i == form;
    Picture1(i)->setVisible(chosen);
    panel.setVisible(chosen);
    if (panel.Note() != nullptr) panel.Note()->setVisible(chosen);
    if (!chosen) panel.Left();
  }
  Show_Form();
}

void frmVelocity::Show_Form() {
  Text4_0->setPlainText(QString::fromStdString(Direction_Note(record_.VelocityProfileType)));
  Velocity_Panel* panel = Panel();
  if (panel != nullptr) panel->Show(ShowVelocityData(record_));
  // Forms differ much in size; what is hidden takes no room.
  Fit_To_Contents();
  if (panel != nullptr) panel->Shown();
}

void frmVelocity::Save() {
  Velocity_Panel* panel = Panel();
  Velocity_Entry entry;
  if (panel != nullptr) panel->Read(entry);
  if (!Check_Velocity(entry, record_.VelocityProfileType)) return;
  SaveVelocityData(entry, record_);
  if (panel != nullptr) panel->Stored();
  Unload();
  Accept_Screen(kScreen, record_);
}

}  // namespace barvon
