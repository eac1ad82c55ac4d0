#include "wizard/data_wiz.h"

#include <QTimer>
#include <QVBoxLayout>

#include "core/desk/analysis_choices.h"
#include "core/desk/screen_register.h"
#include "core/desk/wizard_help.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "core/wizard_answers.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/option_paint.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("Data_Wiz");
enum Button { kBack = 0, kNext, kFinished, kCancelButton, kNoHelp, kEnterData };
constexpr QPoint kPlaceOnDisplay{100, 100};

void Close_Help() { Show_Help({Help_Command::Quit, 0, ""}); }

}  // namespace

Data_Wiz::Data_Wiz(QWidget* workspace)
    : Input_Screen(
          kScreen.name, workspace,
          {.on_return = kNext, .cancel = kCancelButton, .help = kNoHelp, .place = kPlaceOnDisplay}),
      record_(Project()),
      Text1(Named(new QLineEdit(this), "Text1")),
      Check2(Named(new QCheckBox(QStringLiteral("&Disable Help?"), this), "Check2")),
      Frame6(Named(new QGroupBox(QStringLiteral("Evaluation Type"), this), "Frame6")),
      draw_grid_(new QPushButton(QStringLiteral("&Graphical Site Data..."), this)),
      pages_(new Page_Stack(this)),
      fields_(this, Wizard_Faces(record_)) {
  Make_Pages();
  auto* column = new QVBoxLayout(this);
  column->addWidget(pages_, 1);
  column->addLayout(Make_Command1({QStringLiteral("< &Back"), QStringLiteral("&Next >"),
                                   QStringLiteral("&Finished"), QStringLiteral("&Cancel"),
                                   QStringLiteral("&Help"), QStringLiteral("Enter Data")}));
  pages_->Set_Buttons({Command1(kBack), Command1(kNext), Command1(kFinished)});
  Order_Controls();
  Connect();
}

Data_Wiz::~Data_Wiz() {
  if (walk_) Closed();
}

void Data_Wiz::Connect() {
  const auto tell = [this] {
    if (walk_) Tell_Answers(Entry(), record_);
  };
  for (QLineEdit* field : Text7) connect(field, &QLineEdit::textChanged, this, tell);
  connect(Text7(kMaxDuration), &QLineEdit::textEdited, this,
          [this] { walk_->accepted.duration = false; });
  for (QRadioButton* option : SSOption1) {
    connect(option, &QRadioButton::clicked, this, [this] { Paint_Options(SSOption1); });
  }
  for (QRadioButton* option : SSOption2) {
    connect(option, &QRadioButton::clicked, this, [this, tell] {
      // A click on the type that is set chooses nothing.
      const bool other = Chosen_Option(SSOption2) != Answers_Of_Wizard().analysis_option;
      Analysis_Chosen();
      if (other && !walk_->accepted.duration) Put_Default_Duration(Chosen_Option(SSOption2));
      tell();
    });
  }
  for (QRadioButton* option : SSOption3) {
    connect(option, &QRadioButton::clicked, this, [this, tell] {
      Paint_Options(SSOption3);
      tell();
    });
  }
  for (QRadioButton* option : SSOption4) {
    connect(option, &QRadioButton::clicked, this, [this] { Simulation_Chosen(); });
  }
  for (int i = 0; i < kVelocityOptions; ++i) {
    connect(SSOption5(i), &QRadioButton::toggled, this, [this, tell] {
      Velocity_Chosen();
      tell();
    });
    connect(Frame11(i), &Choice_Frame::Clicked, this, [this, i] {
      SSOption5(i)->setFocus(Qt::MouseFocusReason);
      SSOption5(i)->setChecked(true);
    });
  }
  connect(Check2, &QCheckBox::clicked, this, [this](bool set) { Check2_Click(set); });
  connect(draw_grid_, &QPushButton::clicked, this,
          [this] { Open_Graphical_Page(Entry(), *walk_, record_); });
  connect(this, &QDialog::finished, this, [this] { Closed(); });
}

void Data_Wiz::Opening() {
  record_.WizardActive = kTrue;
  walk_.emplace(record_);
  Port().wizard.take_back = [this](ProjectRecord& copy) { Take_Back_Walk(*walk_, copy); };
  Read_Wizard_Help(record_);
  if (record_.WizardHelpOn == kFalse) Close_Help();
  Check2->setChecked(record_.WizardHelpOn == kFalse);
  const Wizard_Entry entry = Opening_Entry(record_);
  fields_.Show(entry.texts);
  Show_Choices(entry);
  if (Text7(kMaxDuration)->text().isEmpty()) Put_Default_Duration(entry.analysis);
  pages_->Start();
  ShowStep();
  Tell_Answers(Entry(), record_);
}

void Data_Wiz::Show_Choices(const Wizard_Entry& entry) {
  Show_Option(SSOption1, entry.evaluation);
  Show_Option(SSOption2, entry.analysis);
  Show_Option(SSOption3, entry.method);
  Show_Option(SSOption4, entry.simulation);
  SSOption5(entry.velocity)->setChecked(true);
  Analysis_Chosen();
  Simulation_Chosen();
  Velocity_Chosen();
}

void Data_Wiz::Analysis_Chosen() {
  Paint_Options(SSOption2);
  const Wizard_Entry entry = Entry();
  const Evaluation_Captions& captions = Evaluation_Captions_Of(Analysis_Type_Of(entry));
  for (int i = SSOption1.first(); i <= SSOption1.last(); ++i) {
    const char* caption = captions.at(static_cast<std::size_t>(i));
    if (caption != nullptr) SSOption1(i)->setText(QLatin1String(caption));
    SSOption1(i)->setVisible(caption != nullptr);
  }
  Show_Option(SSOption1, Offered_Evaluation(entry));
}

void Data_Wiz::Put_Default_Duration(int analysis) {
  const auto duration = Default_Duration(analysis, Text7(kMaxDuration)->text().toStdString());
  if (duration) Text7(kMaxDuration)->setText(QString::fromStdString(*duration));
}

void Data_Wiz::Simulation_Chosen() {
  Paint_Options(SSOption4);
  const bool diffusion = Chosen_Option(SSOption4) == kWithDiffusion;
  Frame6->setEnabled(diffusion);
  for (QRadioButton* option : SSOption1) option->setEnabled(diffusion);
}

void Data_Wiz::Velocity_Chosen() {
  Paint_Options(SSOption5);
  for (int i = 0; i < kVelocityOptions; ++i) {
    Frame11(i)->Show_Chosen(SSOption5(i)->isChecked());
  }
}

void Data_Wiz::Check2_Click(bool disabled) {
  Choose_Wizard_Help(!disabled, record_);
  if (disabled) {
    Close_Help();
  } else {
    Show_Topic_Beside(kWizardTopics[kAnalysisPage]);
  }
}

void Data_Wiz::Command1_Click(int index) {
  switch (index) {
    case kBack:
      Back();
      break;
    case kNext:
      Next();
      break;
    case kFinished:
      Finish();
      break;
    case kCancelButton:
      Cancel();
      break;
    default:  // Help follows the steps by itself; "Enter Data" does nothing.
      break;
  }
}

void Data_Wiz::Back() {
  pages_->Go_Back();
  ShowStep();
}

void Data_Wiz::Next() {
  const int page = pages_->currentIndex();
  const Wizard_Entry entry = Entry();
  if (!Leave_Page(page, entry, *walk_, record_)) return;
  if (page == kVelocityPage) Follow_Accepted_Velocity();
  if (page == kOperationPage) pages_->Set_Complete(Is_Complete_At_Last_Page(entry));
  if (page == kLastPage) pages_->Set_Complete(true);
  pages_->Go_On();
  // Return goes on, also for who has come here by the buttons.
  if (Command1(kBack)->hasFocus()) Command1(kNext)->setFocus();
  ShowStep();
}

// What was chosen on the screen stands for what was chosen here.
void Data_Wiz::Follow_Accepted_Velocity() {
  const Velocity_Form form = Form_Of_Type(record_.VelocityProfileType);
  if (walk_->accepted.velocity && form != kNoForm) SSOption5(form)->setChecked(true);
  if (!walk_->accepted.duration) return;
  const Control_Name duration{"Text7", kMaxDuration};
  Field_Texts stored;
  stored.Set(duration, Field_Text(*Find_Row(Wizard_Fields(), duration, record_), record_));
  fields_.Show(stored);
}

void Data_Wiz::ShowStep() {
  Fill_Page();
  Show_Commands();
  QString title = QStringLiteral("BARVON Data Wizard - ") + pages_->Step_Text();
  if (record_.WizardAccepted != kFalse && !record_.ProjectFileName.empty()) {
    title += QStringLiteral(" (%1)").arg(QString::fromStdString(record_.ProjectFileName));
  }
  // In a window title this sequence is a place holder; doubled it is itself.
  setWindowTitle(title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
  if (isVisible()) Show_Step_Help();
}

void Data_Wiz::Show_Step_Help() {
  if (record_.WizardHelpOn == kFalse) return;
  Show_Topic_Beside(kWizardTopics.at(static_cast<std::size_t>(pages_->currentIndex())));
}

void Data_Wiz::showEvent(QShowEvent* event) {
  Input_Screen::showEvent(event);
  if (event->spontaneous()) return;
  // The help is placed beside this window: once it has its place.
  QTimer::singleShot(0, this, [this] {
    if (isVisible()) Show_Step_Help();
  });
}

void Data_Wiz::Fill_Page() {
  const Wizard_Entry entry = Entry();
  const bool complete = pages_->Is_Complete();
  Text4[kGridPage]->setPlainText(QString::fromStdString(Grid_Text(entry)));
  Text4[kLastPage]->setPlainText(QString::fromStdString(Last_Page_Text(complete)));
  Show_Illustrations(entry.analysis, complete);
}

// The command that goes on is the one that Return gives, and has the keyboard when the other goes.
void Data_Wiz::Show_Commands() {
  const bool ends = Command1(kFinished)->isEnabled();
  Command1(ends ? kFinished : kNext)->setDefault(true);
  if (ends) Command1(kFinished)->setFocus();
}

void Data_Wiz::Finish() {
  Close_Help();
  ApplyWizardToProject(Entry(), walk_->accepted, record_);
  Port().wizard.take_back = [](ProjectRecord&) {};
  Remark_On_Time_Step(record_);
  const bool makes_depth_constant = Ask_About_Two_Points(record_);
  Unload();
  if (makes_depth_constant) Open_Screen_Or_Tell(Row_Of_Screen("frmDescription"), true);
}

void Data_Wiz::Cancel() {
  Call_Off_Walk(*walk_, record_);
  Close_Help();
  Unload();
}

void Data_Wiz::Closed() {
  Port().wizard.take_back = [](ProjectRecord&) {};
  walk_.reset();
  record_.WizardActive = kFalse;
  Take_Back_Answers();
}

Wizard_Entry Data_Wiz::Entry() const {
  Wizard_Entry entry;
  entry.texts = fields_.Texts();
  entry.evaluation = Chosen_Option(SSOption1);
  entry.analysis = Chosen_Option(SSOption2);
  entry.method = Chosen_Option(SSOption3);
  entry.simulation = Chosen_Option(SSOption4);
  entry.velocity = Chosen_Option(SSOption5);
  return entry;
}

void Register_Data_Wiz(QWidget* main) {
  const Screen_Opener open = Fresh_Screens<Data_Wiz>(main);
  Register_Screen(kScreen, [open](bool blocking, const std::string& control) {
    const ProjectRecord& record = Project();
    const bool comes_up = record.WizardActive == kFalse;
    if (comes_up && record.DisposalMethod == kContinuous && !Ask_To_Leave_The_Pipeline()) return;
    if (comes_up && !Port().board.close_input_screens()) return;
    open(blocking, control.empty() ? "Text1" : control);
  });
}

}  // namespace barvon
