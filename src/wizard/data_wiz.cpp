#include "wizard/data_wiz.h"

#include <QButtonGroup>
#include <QIcon>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <vector>

#include "core/desk/analysis_choices.h"
#include "core/desk/screen_register.h"
#include "core/desk/wizard_help.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/note_box.h"
#include "platform/qt/fields/option_paint.h"
#include "wizard/wizard_texts.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("Data_Wiz");
enum Button { kBack = 0, kNext, kFinished, kCancelButton, kNoHelp, kEnterData };
constexpr QPoint kPlaceOnDisplay{100, 100};
constexpr QSize kIllustration{360, 240}, kVelocityIllustration{220, 160};
constexpr QColor kGrey{0xc0, 0xc0, 0xc0};

constexpr std::array<const char*, kWizardPages> kPageCaptions = {
    "Analysis and Disposal Type",   "Program Options",
    "General Site Disposal Data",   "General Site Disposal Data",
    "Velocity Profile Information", "Dredged Material Data",
    "Disposal Operations Data",     "Simulation Times and Site Data"};
constexpr std::array<const char*, 4> kVelocityCaptions = {
    "Single Depth Averaged Velocity", "2-Point Velocity Profile for a Constant Depth Grid",
    "Variable Velocity Field for Entire Grid", "Unsteady Velocity Profile"};
constexpr std::array<const char*, 4> kVelocityPictures = {"velocity_average", "velocity_two_point",
                                                          "velocity_field", "velocity_tidal"};

/// An illustration of the third or the last page.
struct Illustration {
  int index;  // of Picture3
  const char* file;
  const char* words;
};
constexpr int kFirstOfGridPage = 0, kFirstOfLastPage = 4;
constexpr Illustration kIllustrations[] = {
    {0, "wizard_grid", "The model grid with its axes, spacings and the disposal point"},
    {1, "wizard_grid_site", "The model grid with the disposal site, in blue, and its point"},
    {2, "wizard_grid_zone", "The model grid with the mixing zone, in red, and the disposal point"},
    {4, "wizard_tracer", "A cloud of tracer that drifts from the disposal point"},
    {5, "wizard_site", "The four edges of the disposal site, measured from top and left"},
    {6, "wizard_zone", "The four edges of the mixing zone, with a zone of initial dilution in it"},
};

/// What a page says: the index of its Text4 and the lines that it takes.
struct Page_Text {
  int index, lines;
  const char* words;
};
constexpr std::array<Page_Text, kWizardPages> kPageTexts = {{{0, 4, kAnalysisText},
                                                             {1, 2, kOptionsText},
                                                             {3, 8, kGridText},
                                                             {2, 4, kTypicalDataText},
                                                             {7, 2, kVelocityText},
                                                             {5, 7, kMaterialText},
                                                             {4, 5, kOperationText},
                                                             {6, 7, kCompleteText}}};

QPixmap Drawing(const char* file, const QSize& size) {
  return QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(file))).pixmap(size);
}

QGroupBox* Option_Frame(const char* caption, const ControlArray<QRadioButton>& options,
                        QWidget* parent) {
  auto* frame = new QGroupBox(QLatin1String(caption), parent);
  auto* column = new QVBoxLayout(frame);
  for (QRadioButton* option : options) column->addWidget(option);
  return frame;
}

template <class Captions>
void Write_Captions(const ControlArray<QRadioButton>& options, const Captions& captions) {
  for (int i = options.first(); i <= options.last(); ++i) {
    options(i)->setText(QLatin1String(captions[static_cast<std::size_t>(i)]));
  }
}

void Close_Help() { Show_Help({Help_Command::Quit, 0, ""}); }

}  // namespace

Choice_Frame::Choice_Frame(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(3);
}

void Choice_Frame::Show_Chosen(bool chosen) {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, chosen ? kBlue : kGrey);
  setPalette(colours);
}

void Choice_Frame::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Clicked();
}

Data_Wiz::Data_Wiz(QWidget* workspace)
    : Input_Screen(
          kScreen.name, workspace,
          {.on_return = kNext, .cancel = kCancelButton, .help = kNoHelp, .place = kPlaceOnDisplay}),
      record_(Project()),
      Text1(Named(new QLineEdit(this), "Text1")),
      Check2(Named(new QCheckBox(QStringLiteral("&Disable Help?"), this), "Check2")),
      Frame6(Named(Option_Frame("Evaluation Type", SSOption1, this), "Frame6")),
      draw_grid_(new QPushButton(QStringLiteral("&Graphical Site Data..."), this)),
      pages_(new Page_Stack(this)),
      fields_(this, Wizard_Faces(record_)) {
  for (int page = 0; page < kWizardPages; ++page) {
    const auto& [index, lines, words] = kPageTexts.at(static_cast<std::size_t>(page));
    Frame1(page)->setTitle(QLatin1String(kPageCaptions.at(static_cast<std::size_t>(page))));
    QPlainTextEdit* text =
        Make_Note_Box(qPrintable(QStringLiteral("Text4(%1)").arg(index)),
                      QStringLiteral("About step %1").arg(page + 1), lines, Frame1(page));
    text->setPlainText(QLatin1String(words));
    Text4.at(static_cast<std::size_t>(page)) = text;
    (new QVBoxLayout(Frame1(page)))->addWidget(text);
    pages_->addWidget(Frame1(page));
  }
  QWidget* const parts[] = {Analysis_Part(), Options_Part(), Grid_Part(), Typical_Data_Part(),
                            Velocity_Part(), nullptr,        nullptr,     Last_Part()};
  for (int page = 0; page < kWizardPages; ++page) {
    auto* column = static_cast<QVBoxLayout*>(Frame1(page)->layout());
    if (parts[page] != nullptr) column->addWidget(parts[page]);
    column->addStretch();
  }
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

QWidget* Data_Wiz::Analysis_Part() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  auto* description = new QWidget(part);
  Field_Rows rows(description);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  fields_.Add(rows, {"Text1"});
  Text1->setPlaceholderText(QLatin1String(kDescriptionHint));
  Text1->setMinimumWidth(kTitleLength * Text1->fontMetrics().averageCharWidth());
  column->addWidget(description);
  Write_Captions(SSOption3, kMethodCaptions);
  column->addWidget(Option_Frame("Method of Disposal", SSOption3, part));
  Write_Captions(SSOption2, kAnalysisCaptions);
  column->addWidget(Option_Frame("Type of Analysis", SSOption2, part));
  column->addWidget(Check2);
  return part;
}

QWidget* Data_Wiz::Options_Part() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  Write_Captions(SSOption4, kSimulationCaptions);
  column->addWidget(Option_Frame("Simulation Type", SSOption4, part));
  column->addWidget(Frame6);
  return part;
}

QWidget* Data_Wiz::Grid_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  for (int i = kFirstOfGridPage; i <= kFirstOfGridPage + 2; ++i) row->addWidget(Picture3(i));
  row->addStretch();
  draw_grid_->setAutoDefault(false);
  row->addWidget(draw_grid_, 0, Qt::AlignBottom);
  return part;
}

QWidget* Data_Wiz::Typical_Data_Part() {
  auto* part = new QWidget(this);
  Field_Rows rows(part);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  for (int i = 0; i < kTypicalFields; ++i) fields_.Add(rows, {"Text7", i});
  return part;
}

QWidget* Data_Wiz::Velocity_Part() {
  auto* part = new QWidget(this);
  auto* grid = new QGridLayout(part);
  grid->setContentsMargins(0, 0, 0, 0);
  // Each option is in a box of its own; this keeps them one group.
  auto* group = new QButtonGroup(this);
  for (int i = 0; i < kVelocityOptions; ++i) {
    group->addButton(SSOption5(i));
    grid->addWidget(Velocity_Box(i), i / 2, i % 2);
  }
  return part;
}

QWidget* Data_Wiz::Velocity_Box(int option) {
  auto* column = new QVBoxLayout(Frame11(option));
  column->setContentsMargins(8, 4, 8, 4);
  SSOption5(option)->setText(QLatin1String(kVelocityCaptions.at(static_cast<std::size_t>(option))));
  Picture2(option)->setPixmap(
      Drawing(kVelocityPictures.at(static_cast<std::size_t>(option)), kVelocityIllustration));
  Picture2(option)->setAccessibleName(SSOption5(option)->text());
  column->addWidget(SSOption5(option));
  column->addWidget(Picture2(option), 1, Qt::AlignCenter);
  return Frame11(option);
}

QWidget* Data_Wiz::Last_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  for (int i = kFirstOfLastPage; i <= kFirstOfLastPage + 2; ++i) row->addWidget(Picture3(i));
  row->addStretch();
  for (const auto& [index, file, words] : kIllustrations) {
    Picture3(index)->setPixmap(Drawing(file, kIllustration));
    Picture3(index)->setAccessibleName(QLatin1String(words));
  }
  for (QLabel* picture : Picture3) picture->hide();
  return part;
}

void Data_Wiz::Order_Controls() {
  std::vector<QWidget*> order = {Text4[kAnalysisPage], Text1};
  const auto add = [&order](const auto& controls) {
    order.insert(order.end(), controls.begin(), controls.end());
  };
  add(SSOption3);
  add(SSOption2);
  order.insert(order.end(), {Check2, Text4[kOptionsPage]});
  add(SSOption4);
  add(SSOption1);
  order.insert(order.end(), {Text4[kGridPage], draw_grid_, Text4[kTypicalDataPage]});
  add(Text7);
  order.push_back(Text4[kVelocityPage]);
  add(SSOption5);
  for (const int page : {kMaterialPage, kOperationPage, kLastPage}) {
    order.push_back(Text4.at(static_cast<std::size_t>(page)));
  }
  Tab_Through(order);
}

void Data_Wiz::Connect() {
  const auto tell = [this] {
    if (walk_) Tell_Answers(Entry(), record_);
  };
  for (QLineEdit* field : Text7) connect(field, &QLineEdit::textChanged, this, tell);
  for (QRadioButton* option : SSOption1) {
    connect(option, &QRadioButton::clicked, this, [this] { Paint_Options(SSOption1); });
  }
  for (QRadioButton* option : SSOption2) {
    connect(option, &QRadioButton::clicked, this, [this, tell] {
      Analysis_Chosen();
      Put_Default_Duration(Chosen_Option(SSOption2));
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
    Show_Topic(kWizardTopics[kAnalysisPage]);
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
  if (record_.WizardHelpOn == kFalse) return;
  Show_Topic(kWizardTopics.at(static_cast<std::size_t>(pages_->currentIndex())));
  // The page comes forward by itself, but who works by keys is still here.
  if (isVisible()) activateWindow();
}

void Data_Wiz::Fill_Page() {
  const Wizard_Entry entry = Entry();
  Text4[kGridPage]->setPlainText(QString::fromStdString(Grid_Text(entry)));
  Text4[kLastPage]->setPlainText(QString::fromStdString(Last_Page_Text(entry)));
  const bool complete = Is_Complete_At_Last_Page(entry);
  for (int i = 0; i < kAnalysisTypes; ++i) {
    Picture3(kFirstOfGridPage + i)->setVisible(i == entry.analysis);
    Picture3(kFirstOfLastPage + i)->setVisible(i == entry.analysis && !complete);
  }
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
    const bool comes_up = Project().WizardActive == kFalse;
    if (comes_up && !Port().board.close_input_screens()) return;
    open(blocking, control.empty() ? "Text1" : control);
  });
}

}  // namespace barvon
