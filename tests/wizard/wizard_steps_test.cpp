#include "wizard/wizard_steps.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/desk/analysis_keys.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"
#include "wizard/walk_bench.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

constexpr char kNoDuration[] =
    "Please Provide a Maximum Simulation Time of Interest Greater Than Zero.";
constexpr char kComputed[] =
    "The values in the Disposal Site Description form will be computed from data supplied through "
    "the Data Wizard.  Press Yes if you wish to accept these values.";

/// A walk over the stand-ins of the screens. The site is 10000 ft wide with a current of 1 ft/s
/// along X: 65 points each way, 175 ft in X and 10 ft in Z apart.
class WizardSteps : public Recorded_Workspace {
 protected:
  WizardSteps() {
    Set_Project_Defaults(record_);
    record_.WizardActive = kTrue;
    Port().board.display_data = [this] { Refresh_Record(record_); };
    Type(kPlumeDistance, "10000");
    Type(kMaxDuration, "2400");
    Type(kTypicalVelocityX, "1");
    Type(kTypicalVelocityZ, "0");
    Type(kWaterDepth, "50");
    entry.simulation = 1;
    Begin();
  }
  void Begin() {
    *before = record_;
    walk.emplace(record_);
  }
  void Type(Typical_Field field, const std::string& text) { entry.texts("Text7", field) = text; }
  bool Leave(int page, std::vector<Answer> answers = {}) {
    Scripted_Messages messages(std::move(answers));
    const bool left = Leave_Page(page, entry, *walk, record_);
    asked.clear();
    for (const Message& message : messages.shown) asked.push_back(message.text);
    return left;
  }
  bool Leave_Site(Answer answer) { return Leave(kTypicalDataPage, {answer}); }
  Names Changed() const { return Differing_Fields(*before, record_); }

  Screen_Doubles screens{record_};
  Wizard_Entry entry;
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::optional<Wizard_Walk> walk;
  Names asked;
};

TEST_F(WizardSteps, The_First_Three_Pages_Open_Nothing_And_Write_Nothing) {
  for (const int page : {kAnalysisPage, kOptionsPage, kGridPage}) EXPECT_TRUE(Leave(page));
  EXPECT_EQ(screens.opened, Names{});
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(WizardSteps, Without_A_Duration_The_Page_Is_Not_Left) {
  for (const char* duration : {"0", "", "none", "-5"}) {
    Type(kMaxDuration, duration);
    EXPECT_FALSE(Leave_Page(kTypicalDataPage, entry, *walk, record_)) << duration;
  }
  Type(kMaxDuration, "0");
  EXPECT_FALSE(Leave(kTypicalDataPage, {Answer::Ok}));
  EXPECT_EQ(asked, Names{kNoDuration});
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(WizardSteps, Cancel_Of_The_Question_Stays_With_Nothing_Computed) {
  EXPECT_FALSE(Leave_Site(Answer::Cancel));
  EXPECT_EQ(asked, Names{kComputed});
  EXPECT_EQ(screens.opened, Names{});
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(WizardSteps, Yes_Computes_The_Grid_Before_The_Screen_Opens) {
  bool seen = false;
  screens.acts["frmDescription"] = [&] {
    seen = true;
    EXPECT_EQ(record_.NMAX0, 65);
    EXPECT_EQ(record_.MMAX0, 65);
    EXPECT_EQ(record_.DX0, 175);
    EXPECT_EQ(record_.DZ0, 10);
    EXPECT_EQ(record_.WizardAccepted, kTrue);
    EXPECT_EQ(record_.WizardActive, kTrue);
    EXPECT_EQ(record_.AnalysisType, kOpenWater);
    EXPECT_EQ(record_.KEY4, 1);
  };
  EXPECT_TRUE(Leave_Site(Answer::Yes));
  EXPECT_TRUE(seen);
  EXPECT_EQ(screens.opened, Names{"frmDescription"});
  EXPECT_EQ(record_.NMAX0, 65);
  EXPECT_TRUE(walk->accepted.depth);
}

TEST_F(WizardSteps, No_Opens_The_Screen_Without_A_Grid) {
  screens.acts["frmDescription"] = [&] { EXPECT_EQ(record_.WizardActive, kTrue); };
  EXPECT_TRUE(Leave_Site(Answer::No));
  EXPECT_EQ(screens.opened, Names{"frmDescription"});
  EXPECT_EQ(record_.NMAX0, 32);
  EXPECT_EQ(record_.WizardAccepted, kFalse);
}

TEST_F(WizardSteps, No_For_An_Accepted_Project_Lets_The_Screen_Keep_The_Records_Values) {
  record_.WizardAccepted = kTrue;
  Begin();
  screens.acts["frmDescription"] = [&] { EXPECT_EQ(record_.WizardActive, kFalse); };
  EXPECT_TRUE(Leave_Site(Answer::No));
  EXPECT_EQ(record_.WizardActive, kTrue) << "afterwards";
}

TEST_F(WizardSteps, Data_That_Make_No_Grid_Are_Refused_In_Words_And_The_Page_Stays) {
  struct Refused {
    Typical_Field field;
    const char* text;
  };
  for (const Refused& row : {Refused{kTypicalVelocityX, "0"},
                             {kWaterDepth, "0"},
                             {kWaterDepth, ""},
                             {kPlumeDistance, ""},
                             {kPlumeDistance, "1e300"}}) {
    const Wizard_Entry sound = entry;
    Type(row.field, row.text);
    EXPECT_FALSE(Leave(kTypicalDataPage, {Answer::Yes, Answer::Ok})) << row.text;
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(Changed(), Names{});
    entry = sound;
  }
  Type(kTypicalVelocityX, "0");
  Leave(kTypicalDataPage, {Answer::Yes, Answer::Ok});
  EXPECT_EQ(asked.at(1), "Please Provide a Typical Velocity Other Than Zero.");
  EXPECT_EQ(screens.opened, Names{});
}

TEST_F(WizardSteps, Cancel_Of_A_Screen_Brings_Back_What_Stood_Before_It_Was_Prepared) {
  record_.TracerName() = "dye";
  record_.KEY2 = kDiffusion;
  Begin();
  entry.analysis = 1;
  entry.method = 1;
  screens.accepts = false;
  screens.acts["frmDescription"] = [&] {
    record_.DEPC0 = 50;
    record_.DensityDepths[2] = 50;
    record_.DensityComputeFlag = kTrue;
  };
  screens.acts["frmVelocity"] = [&] { record_.VelocityProfileType = kVelocityField; };
  EXPECT_TRUE(Leave_Site(Answer::Yes));
  EXPECT_EQ(Changed(), Names{});
  EXPECT_TRUE(Leave(kVelocityPage));
  EXPECT_TRUE(Leave(kOperationPage));
  EXPECT_TRUE(Leave(kLastPage));
  EXPECT_EQ(Changed(), Names{});
  EXPECT_EQ(screens.opened, (Names{"frmDescription", "frmVelocity", "frmOperation", "frmMdlkyn"}));
  EXPECT_FALSE(walk->accepted.depth);
  EXPECT_FALSE(walk->accepted.velocity);
}

TEST_F(WizardSteps, The_Material_Screen_Is_The_Vessels) {
  Leave(kMaterialPage);
  entry.method = 1;
  Leave(kMaterialPage);
  EXPECT_EQ(screens.opened, (Names{"frmMatHopper", "frmMatBarge"}));
}

TEST_F(WizardSteps, Every_Screen_Opens_With_The_Choices_In_The_Record) {
  entry.analysis = 2;
  entry.evaluation = 1;
  entry.method = 1;
  int checked = 0;
  for (const char* name : {"frmDescription", "frmVelocity", "frmMatBarge", "frmOperation",
                           "frmMdlkyn", "Graphic_Data_Entry"}) {
    screens.acts[name] = [&] {
      ++checked;
      EXPECT_EQ(record_.AnalysisType, kNavigableWaters);
      EXPECT_EQ(record_.DisposalMethod, kBarge);
      EXPECT_EQ(record_.KEY2, kDiffusion);
      EXPECT_EQ(record_.KEY3, kNavigableWaterQuality);
      EXPECT_EQ(record_.KEY4, 6);
      record_.ZidFlag = 1;
    };
  }
  Leave_Site(Answer::Yes);
  for (const int page : {kVelocityPage, kMaterialPage, kOperationPage, kLastPage}) Leave(page);
  Open_Graphical_Page(entry, *walk, record_);
  EXPECT_EQ(checked, 6);
  EXPECT_EQ(record_.ZidFlag, 1) << "entered on the evaluation's screen, it is kept";
}

TEST_F(WizardSteps, The_Vessel_Is_Placed_Once_For_Each_Yes) {
  Leave_Site(Answer::Yes);
  Leave(kOperationPage);
  EXPECT_DOUBLE_EQ(record_.XBARGE, 0.2 * 64 * 175);
  EXPECT_DOUBLE_EQ(record_.ZBARGE, 0.2 * 64 * 10);
  record_.XBARGE = 800;  // moved by the user
  Leave(kOperationPage);
  EXPECT_EQ(record_.XBARGE, 800) << "by Back and Next";
  Type(kTypicalVelocityX, "-1");
  Leave_Site(Answer::Yes);
  Leave(kOperationPage);
  EXPECT_DOUBLE_EQ(record_.XBARGE, 0.8 * 64 * 175) << "a second Yes";
}

TEST_F(WizardSteps, The_Vessel_Stays_After_No_Unless_It_Was_Never_Placed) {
  record_.XBARGE = 100;
  Leave_Site(Answer::No);
  Leave(kOperationPage);
  EXPECT_EQ(record_.XBARGE, 100);
  EXPECT_EQ(record_.ZBARGE, 0);
  record_.XBARGE = 0;
  record_.DX0 = record_.DZ0 = 100;
  Type(kTypicalVelocityX, "-1");
  Leave(kOperationPage);
  EXPECT_DOUBLE_EQ(record_.XBARGE, 0.2 * 31 * 100) << "the typical velocity is 0 without a Yes";
}

TEST_F(WizardSteps, A_Vessel_Whose_Screen_Was_Called_Off_Is_Still_To_Be_Placed) {
  Leave_Site(Answer::Yes);
  screens.accepts = false;
  Leave(kOperationPage);
  EXPECT_EQ(record_.XBARGE, 0);
  screens.accepts = true;
  Leave(kOperationPage);
  EXPECT_DOUBLE_EQ(record_.XBARGE, 2240);
}

TEST_F(WizardSteps, A_Yes_Whose_Screen_Was_Called_Off_Places_Nothing) {
  record_.XBARGE = 100;
  Begin();
  screens.accepts = false;
  Leave_Site(Answer::Yes);
  screens.accepts = true;
  Leave(kOperationPage);
  EXPECT_EQ(record_.XBARGE, 100);
}

TEST_F(WizardSteps, The_Site_Is_Placed_Once_Upstream_Of_The_Vessel) {
  entry.analysis = 1;
  entry.method = 1;
  record_.BargeLength = 200;
  Leave_Site(Answer::Yes);
  Leave(kOperationPage);
  record_.XBARGE = 800;
  record_.ZBARGE = 512;
  Leave(kLastPage);
  EXPECT_DOUBLE_EQ(record_.SiteTop, 400);
  EXPECT_DOUBLE_EQ(record_.SiteLeft, 112);
  EXPECT_EQ(record_.SiteBottom, 0);
  record_.SiteTop = 300;
  Leave(kLastPage);
  EXPECT_EQ(record_.SiteTop, 300);
  EXPECT_EQ(notes_, Names{});
}

TEST_F(WizardSteps, A_Site_Beyond_The_Edge_Is_A_Remark) {
  entry.analysis = 2;
  entry.method = 1;
  record_.BargeLength = 200;
  record_.XBARGE = 390;
  record_.ZBARGE = 500;
  std::string details;
  Port().board.show_note = [&](const Status_Note& note) {
    notes_.push_back(note.text);
    details = note.details;
  };
  Leave(kLastPage);
  EXPECT_EQ(record_.SiteTop, -10);
  EXPECT_EQ(notes_,
            Names{"The Data Wizard placed an edge of the disposal site outside of the grid."});
  EXPECT_EQ(details, "Top edge: -10 ft\n");
}

TEST_F(WizardSteps, Open_Water_Has_No_Site_But_Its_KEY3) {
  entry.evaluation = 1;
  record_.BargeLength = 200;
  Leave(kLastPage);
  EXPECT_EQ(record_.SiteTop, 0);
  EXPECT_EQ(record_.KEY3, kTracer);
}

TEST_F(WizardSteps, The_Velocity_Screen_Finds_The_Typed_Duration_In_The_Record) {
  record_.SimulationDuration = 600;
  Begin();
  double found = 0;
  screens.acts["frmVelocity"] = [&] { found = record_.SimulationDuration; };
  Leave(kVelocityPage);
  EXPECT_EQ(found, 2400);
  EXPECT_EQ(record_.SimulationDuration, 600) << "no form but the unsteady one stores it";
  screens.acts["frmVelocity"] = [&] { record_.VelocityProfileType = kUnsteadyVelocity; };
  screens.accepts = false;
  Leave(kVelocityPage);
  EXPECT_EQ(record_.SimulationDuration, 600);
  screens.accepts = true;
  Leave(kVelocityPage);
  EXPECT_EQ(record_.SimulationDuration, 2400);
  Call_Off_Walk(*walk, record_);
  EXPECT_EQ(record_.SimulationDuration, 2400);
}

TEST_F(WizardSteps, Cancel_Brings_Everything_Back_But_What_Screens_Accepted) {
  record_.SiteTop = 7;
  Begin();
  entry.analysis = 1;
  entry.method = 1;
  screens.acts["frmDescription"] = [&] { record_.DEPC0 = 71; };
  Leave_Site(Answer::Yes);
  screens.acts["frmVelocity"] = [&] {
    record_.VelocityProfileType = kUnsteadyVelocity;
    record_.SimulationDuration = 7200;
  };
  Leave(kVelocityPage);
  EXPECT_TRUE(walk->accepted.duration);
  screens.accepts = false;
  Leave(kOperationPage);
  Leave(kLastPage);
  Call_Off_Walk(*walk, record_);
  EXPECT_EQ(record_.DEPC0, 71);
  EXPECT_EQ(record_.NMAX0, 65);
  EXPECT_EQ(record_.VelocityProfileType, kUnsteadyVelocity);
  EXPECT_EQ(record_.SimulationDuration, 7200);
  EXPECT_EQ(record_.XBARGE, 0);
  EXPECT_EQ(record_.SiteTop, 7);
  EXPECT_EQ(record_.AnalysisType, before->AnalysisType);
  EXPECT_EQ(record_.DisposalMethod, before->DisposalMethod);
  EXPECT_EQ(record_.KEY4, before->KEY4);
}

/// What a copy of the record would be, were the program to end now.
struct Kept {
  explicit Kept(const Wizard_Walk& walk, const ProjectRecord& record)
      : copy(std::make_unique<ProjectRecord>(record)) {
    Take_Back_Walk(walk, *copy);
  }
  ProjectRecord* operator->() const { return copy.get(); }
  std::unique_ptr<ProjectRecord> copy;
};

TEST_F(WizardSteps, What_No_Screen_Has_Accepted_Is_Taken_Out_Of_A_Copy) {
  entry.analysis = 1;
  const auto looks_untouched = [&] {
    const Kept kept(*walk, record_);
    Names changed = Differing_Fields(*before, *kept.copy);
    EXPECT_EQ(changed, Names{});
  };
  looks_untouched();
  screens.acts["frmDescription"] = [&] {
    EXPECT_EQ(record_.NMAX0, 65);
    looks_untouched();
    record_.DEPC0 = 71;  // OK stores it
  };
  Leave_Site(Answer::Yes);
  const Kept kept(*walk, record_);
  EXPECT_EQ(kept->NMAX0, 65);
  EXPECT_EQ(kept->DEPC0, 71);
  EXPECT_EQ(kept->AnalysisType, before->AnalysisType);
  EXPECT_EQ(kept->KEY4, before->KEY4);
  EXPECT_NE(record_.KEY4, before->KEY4);
}

TEST_F(WizardSteps, What_Somebody_Else_Has_Changed_Meanwhile_Stays_In_A_Copy) {
  entry.analysis = 1;
  screens.accepts = false;
  Leave_Site(Answer::Yes);
  record_.NMAX0 = 30;  // from the database
  EXPECT_EQ(Kept(*walk, record_)->NMAX0, 30) << "the walk has left nothing yet";
  screens.accepts = true;
  Leave(kVelocityPage);
  record_.SiteTop = 900;
  const Kept kept(*walk, record_);
  EXPECT_EQ(kept->SiteTop, 900);
  EXPECT_EQ(kept->KEY4, before->KEY4);
}

TEST_F(WizardSteps, Variable_Depth_Accepted_On_The_Way_Keeps_The_Velocity_That_It_Displaced) {
  record_.VelocityProfileType = kTwoPointVelocity;
  Begin();
  screens.acts["frmDescription"] = [&] {
    record_.ConstantDepthFlag = 0;
    record_.VelocityProfileType = kNoVelocity;
  };
  Leave_Site(Answer::Yes);
  Call_Off_Walk(*walk, record_);
  EXPECT_EQ(record_.VelocityProfileType, kNoVelocity);
}

TEST_F(WizardSteps, A_Contaminant_Outlives_A_Look_At_Descent_And_Collapse) {
  record_.KEY2 = kDiffusion;
  record_.TracerName() = "dye";
  record_.TracerConcentration = 5;
  Begin();
  entry.simulation = 0;
  Leave(kVelocityPage);
  EXPECT_EQ(record_.TracerName(), "") << "a project without diffusion has none";
  entry.simulation = 1;
  Leave(kVelocityPage);
  EXPECT_EQ(record_.TracerName(), "dye");
  entry.simulation = 0;
  Leave(kVelocityPage);
  Call_Off_Walk(*walk, record_);
  EXPECT_EQ(record_.TracerName(), "dye");
  EXPECT_EQ(record_.TracerConcentration, 5);
}

TEST_F(WizardSteps, What_Is_Drawn_By_Hand_And_Accepted_Outlives_Cancel) {
  screens.acts["Graphic_Data_Entry"] = [&] {
    record_.NMAX0 = 20;
    record_.XBARGE = 300;
    record_.SiteTop = 200;
  };
  Open_Graphical_Page(entry, *walk, record_);
  Call_Off_Walk(*walk, record_);
  EXPECT_EQ(record_.NMAX0, 20);
  EXPECT_EQ(record_.XBARGE, 300);
  EXPECT_EQ(record_.SiteTop, 200);
}

TEST_F(WizardSteps, The_Last_Page_Is_The_End_Without_Diffusion_And_Without_A_Tracer) {
  struct Row {
    int analysis, simulation, evaluation;
    bool complete;
  };
  for (const Row& row : {Row{0, 0, 0, true},
                         {0, 0, 1, true},
                         {1, 0, 2, true},
                         {2, 0, 1, true},
                         {0, 1, 0, true},
                         {0, 1, 1, false},
                         {1, 1, 0, false},
                         {2, 1, 2, false}}) {
    entry.analysis = row.analysis;
    entry.simulation = row.simulation;
    entry.evaluation = row.evaluation;
    EXPECT_EQ(Is_Complete_At_Last_Page(entry), row.complete);
    EXPECT_EQ(Last_Page_Text(row.complete),
              row.complete
                  ? "The Data Wizard is now complete.  Click on the Finished button to return to "
                    "the main BARVON window.  At this point you may click on the Enter/Edit button "
                    "to edit data supplied through the Data Wizard.  If all data has been supplied "
                    "through the wizard you may now conducte a simulation and view output and "
                    "generate graphics."
                  : "Dimensions of the disposal site and water quality data are supplied in the "
                    "next form.");
  }
}

TEST_F(WizardSteps, The_Text_Of_The_Grid_Ends_By_The_Analysis) {
  const std::string common =
      "The model grid is characterized as a rectangular grid with the Z-Direction representing the "
      "width of the grid and the x - Direction representing the grid length.  The model grid is "
      "further defined using a series of grid points that are spaced apart in the X and Z "
      "directions.  The spacing in the Z-Direction (DZ) does not have to be the same as the "
      "spacing in the X-Direction (DX).  Note the presence of the disposal point within the model "
      "grid.";
  EXPECT_EQ(Grid_Text(entry), common);
  entry.analysis = 1;
  EXPECT_EQ(Grid_Text(entry), common +
                                  "  For Section 103 Analysis a disposal grid, shown in blue, is "
                                  "superimposed on the disposal site.");
  entry.analysis = 2;
  EXPECT_EQ(Grid_Text(entry), common +
                                  "  For Section 404 Analysis a mixing zone, shown in red, is "
                                  "superimposed on the disposal site.  ");
}

}  // namespace
}  // namespace barvon::testing
