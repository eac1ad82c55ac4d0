#include <QGridLayout>
#include <QHBoxLayout>

#include "core/desk/analysis_choices.h"
#include "core/desk/coefficient_words.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/qt/fields/encoding_validator.h"
#include "workspace/board_parts.h"
#include "workspace/display_data.h"
#include "workspace/main_controls.h"

namespace barvon {
namespace {

constexpr int kGap = 12;     // between groups
constexpr int kLineGap = 8;  // between the lines of a group

QLayout* Title_Line(Main_Controls& controls) {
  auto* label = new QLabel(QStringLiteral("Project Title"), controls.Frame3D1);
  label->setObjectName(QStringLiteral("Label1"));
  QLineEdit* title = controls.Title_Box;
  title->setObjectName(QStringLiteral("Title_Box"));
  title->setAccessibleName(label->text());
  title->setMaxLength(kTitleLength);
  title->setAcceptDrops(false);  // or the name of a project dropped here would become its title
  title->setValidator(new Encoding_Validator(title));
  label->setBuddy(title);
  auto* line = new QHBoxLayout;
  line->setSpacing(kGap);
  line->addWidget(label);
  line->addWidget(title, 1);
  return line;
}

QGroupBox* Data_Categories(Main_Controls& controls) {
  static constexpr const char* kCategories[] = {"Program Options",    "Site Description",
                                                "Velocity Data",      "Material Description",
                                                "Disposal Operation", "Coefficients"};
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D3", "Data Categories");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(12, 8, 12, 10);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(kLineGap);
  for (int i = 0; i < 6; ++i) {
    Text(controls.Label2(i), kCategories[i]);
    Text(controls.Text2(i));
    Show_Status_Line(controls, i, i == 5 ? kDefaultCoefficientsUsed : kDataNotEntered,
                     Status_Colour::Black);
    grid->addWidget(controls.Label2(i), i, 0);
    grid->addWidget(controls.Text2(i), i, 1);
  }
  grid->setColumnStretch(1, 1);
  return frame;
}

QGroupBox* Database_Information(Main_Controls& controls) {
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D4", "DataBase Information");
  auto* lines = Lines(frame, kLineGap);
  auto* head = new QHBoxLayout;
  head->addWidget(Shown_State(controls.SSCheck1, "SSCheck1", "DataBase Used"), 1);
  Picture_Button(controls.SSRibbon1(kDataBaseRibbon), "database", "DataBase");
  head->addWidget(controls.SSRibbon1(kDataBaseRibbon));
  lines->addLayout(head);
  for (QLabel* line : controls.Label3) lines->addWidget(Text(line));
  Show_No_Database(controls);
  lines->addStretch();
  return frame;
}

QGroupBox* Analysis_Types(Main_Controls& controls) {
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D5", kAnalysisFrame);
  auto* lines = Lines(frame, kLineGap);
  for (int i = 0; i < 3; ++i) {
    controls.SSOption1(i)->setText(QLatin1String(kAnalysisCaptions[static_cast<std::size_t>(i)]));
    lines->addWidget(controls.SSOption1(i));
  }
  return frame;
}

QGroupBox* Disposal_Methods(Main_Controls& controls) {
  auto* frame = Frame(controls.MethodFrame, "Frame3D6", kMethodFrame);
  auto* lines = Lines(frame, kLineGap);
  for (int i = 0; i < 2; ++i) {
    controls.SSOption2(i)->setText(QLatin1String(kMethodCaptions[static_cast<std::size_t>(i)]));
    lines->addWidget(controls.SSOption2(i));
  }
  frame->setEnabled(false);
  return frame;
}

QLayout* Dilution_Line(Main_Controls& controls) {
  auto* label = new QLabel(QStringLiteral("Determine Contaminant Based on Dilution Needs"),
                           controls.Frame3D1);
  label->setObjectName(QStringLiteral("Label7"));
  Picture_Button(controls.SSRibbon2(kDilutionRibbon), "dilution", "Dilution Calculator");
  label->setBuddy(controls.SSRibbon2(kDilutionRibbon));
  auto* line = new QHBoxLayout;
  line->setContentsMargins(12, 0, 12, 0);
  line->setSpacing(kGap);
  line->addWidget(controls.SSRibbon2(kDilutionRibbon));
  line->addWidget(label, 1);
  return line;
}

}  // namespace

void Build_Main_Menu_Board(Main_Controls& controls) {
  auto* board = new QVBoxLayout(Frame(controls.Frame3D1, "Frame3D1", "BARVON Main Menu"));
  board->setContentsMargins(14, 12, 14, 14);
  board->setSpacing(kGap);
  board->addLayout(Title_Line(controls));
  auto* state = new QHBoxLayout;
  state->setSpacing(kGap);
  state->addWidget(Data_Categories(controls), 1);
  state->addWidget(Database_Information(controls), 1);
  board->addLayout(state);
  board->addWidget(Analysis_Types(controls));
  board->addWidget(Disposal_Methods(controls));
  board->addStretch();
  board->addLayout(Dilution_Line(controls));
  board->addStretch();
}

}  // namespace barvon
