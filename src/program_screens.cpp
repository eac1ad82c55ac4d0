#include "program_screens.h"

#include "checks/frm_error_list.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "database/data_base.h"
#include "database/frm_database_check.h"
#include "dilution/dilution_report.h"
#include "dilution/frm_dilute2.h"
#include "material/frm_density.h"
#include "material/frm_mat_barge.h"
#include "material/frm_mat_hopper.h"
#include "params/frm_coefficients.h"
#include "params/frm_mdlkyn.h"
#include "params/frm_operation.h"
#include "params/frm_simulation.h"
#include "platform/qt/input_screen.h"
#include "report/report_commands.h"
#include "site/frm_description.h"
#include "site/frm_grid_descrip.h"
#include "site/frm_velocity.h"
#include "wizard/data_wiz.h"
#include "wizard/graphic_data_entry.h"
#include "workspace/frm_about.h"
#include "workspace/frm_open.h"
#include "workspace/frm_tip.h"
#include "workspace/note_pads.h"

namespace barvon {
namespace {

/// A screen that is made anew at each use.
template <class Screen>
void Register(const Screen_Row& row, QWidget* main) {
  Register_Screen(row, Fresh_Screens<Screen>(main));
}

}  // namespace

void Register_Program_Screens(QWidget* main) {
  Register_frmErrorList(main);
  Register_frmOpen(main);
  Register_frmNotePad(main);
  Register<frmDescription>(Row_Of_Screen("frmDescription"), main);
  Register_frmGridDescrip(main);
  Register<frmVelocity>(Row_Of_Screen("frmVelocity"), main);
  Register<frmMatHopper>(Row_Of_Screen("frmMatHopper"), main);
  Register<frmMatBarge>(Row_Of_Screen("frmMatBarge"), main);
  Register<frmDensity>(Row_Of_Screen("frmDensity"), main);
  Register<frmOperation>(Row_Of_Screen("frmOperation"), main);
  Register<frmCoefficients>(Row_Of_Screen("frmCoefficients"), main);
  Register<frmMdlkyn>(Row_Of_Screen("frmMdlkyn"), main);
  Register<frmSimulation>(Row_Of_Screen("frmSimulation"), main);
  Register<frmDilute2>(Row_Of_Screen("frmDilute2"), main);
  Register_Dilute_Report();
  Register_Project_Report();
  Register_DataBase(main);
  Register<frmDatabaseCheck>(Row_Of_Screen("frmDatabaseCheck"), main);
  Register_Data_Wiz(main);
  Register<Graphic_Data_Entry>(Row_Of_Screen("Graphic_Data_Entry"), main);
  Register<frmTip>(Row_Of_Screen("frmTip"), main);
  Register<frmAbout>(Row_Of_Screen("frmAbout"), main);
  Register<frmAboutMore>(Row_Of_Screen("frmAboutMore"), main);
}

}  // namespace barvon
