#pragma once

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>

#include "core/desk/screen_table.h"
#include "core/velocity_types.h"
#include "platform/qt/elided_label.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/latching_button.h"
#include "workspace/option_logic.h"
#include "workspace/status_area.h"

namespace barvon {

/// The row of commands under both boards, SSPanel3 by its indices.
enum Command_Button {
  kEnterData,
  kRunSimulation,
  kViewGraphics,
  kUpdateDatabase,
  kReturnToMenu,
  kExitProgram,
  kShowHelp,
  kViewOutput,
  kSaveDataFile,
  kDataWizard
};
inline constexpr int kCommandButtons = 10;

/// The picture buttons, SSRibbon1 by its indices; that of the database is on the main menu board.
enum Ribbon {
  kSiteRibbon,
  kVelocityRibbon,
  kMaterialRibbon,
  kOperationRibbon,
  kDataBaseRibbon,
  kWaterRibbon
};
inline constexpr int kRibbons = 6;
inline constexpr int kDilutionRibbon = 3;  // the only one of SSRibbon2

/// What a picture button opens, by Ribbon. The material's has a second screen for barges.
inline constexpr const Screen_Row* kRibbonScreens[kRibbons] = {
    &Row_Of_Screen("frmDescription"), &Row_Of_Screen("frmVelocity"), &Row_Of_Screen("frmMatHopper"),
    &Row_Of_Screen("frmOperation"),   &Row_Of_Screen("DataBase"),    &Row_Of_Screen("frmDensity")};

/// The buttons beside the output options, SSPanel5 by its indices.
enum Option_Button { kEnterCoefficients, kEnterEvaluation, kEnterOptions };
inline constexpr int kOptionButtons = 3;

/// What they open.
inline constexpr const Screen_Row* kOptionScreens[kOptionButtons] = {
    &Row_Of_Screen("frmCoefficients"), &Row_Of_Screen("frmMdlkyn"),
    &Row_Of_Screen("frmSimulation")};

/// The controls of the main window. Who builds, fills and hears them is elsewhere.
struct Main_Controls {
  explicit Main_Controls(QMainWindow* main)
      : window(main),
        Frame3D1(new QGroupBox(main)),
        Title_Box(new QLineEdit(main)),
        Label2(main, "Label2", 6),
        Text2(main, "Text2", 6),
        MethodFrame(new QGroupBox(main)),
        SSOption1(main, "SSOption1", 3),
        SSOption2(main, "SSOption2", 2),
        SSRibbon2(main, "SSRibbon2", 1, kDilutionRibbon),
        SSCheck1(new QCheckBox(main)),
        Label3(main, "Label3", 4),
        SSRibbon1(main, "SSRibbon1", kRibbons),
        Frame3D2(new QGroupBox(main)),
        SSOption3(main, "SSOption3", 2),
        SSOption4(main, "SSOption4", 3),
        Label4(main, "Label4", 2),
        SSPanel5(main, "SSPanel5", kOptionButtons),
        Option3D1(main, "Option3D1", kVelocityForms),
        Check3D1(new QCheckBox(main)),
        SSCheck4(new QCheckBox(main)),
        SiteLabel(main, "SiteLabel", 7),
        Label5(main, "Label5", 2),
        SSCheck2(main, "SSCheck2", 3),
        Matlabel(main, "Matlabel", 4, 3),
        SSCheck3(new QCheckBox(main)),
        Label6(main, "Label6", 3),
        SSPanel3(main, "SSPanel3", kCommandButtons),
        status_area(new Status_Area(main)),
        Toolbar1(new QToolBar(main)) {}

  QMainWindow* window;

  // The main menu board.
  QGroupBox* Frame3D1;
  QLineEdit* Title_Box;
  ControlArray<QLabel> Label2, Text2;  // data categories and their states
  QGroupBox* MethodFrame;
  ControlArray<QRadioButton> SSOption1, SSOption2;  // type of analysis, method of disposal
  ControlArray<Latching_Button> SSRibbon2;          // the dilution calculator
  QCheckBox* SSCheck1;
  ControlArray<Elided_Label> Label3;  // what was chosen from the database
  ControlArray<Latching_Button>
      SSRibbon1;  // by Ribbon; one is here, the others are on the data board

  // The data board.
  QGroupBox* Frame3D2;
  ControlArray<QRadioButton> SSOption3, SSOption4;  // simulation type, evaluation type
  ControlArray<QLabel> Label4;                      // the hints of their frames
  ControlArray<QPushButton> SSPanel5;               // by Option_Button
  ControlArray<QRadioButton> Option3D1;             // velocity
  QCheckBox* Check3D1;                              // its logarithmic profile
  QCheckBox* SSCheck4;                              // JBFC coefficient
  // Shortened with dots when a value is too long for its frame.
  ControlArray<Elided_Label> SiteLabel, Label5;
  ControlArray<QCheckBox> SSCheck2;
  ControlArray<Elided_Label> Matlabel;  // (3) to (6)
  QCheckBox* SSCheck3;
  ControlArray<Elided_Label> Label6;

  // In view under both boards.
  ControlArray<QPushButton> SSPanel3;  // by Command_Button
  Status_Area* status_area;
  QToolBar* Toolbar1;
  QHash<QString, QAction*> actions;  // menu items and toolbar buttons by their names

  KEY3_Follower key3;  // what the groups of options owe the record
};

}  // namespace barvon
