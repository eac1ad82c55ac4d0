#pragma once

#include "report/report_rows.h"

namespace barvon {

// The chapters of a project report. Labels, units and headings are those of the screens.

/// What is studied: the choices of the main window.
void Report_Study(Report_Maker& report);
/// What a check of the project finds and remarks.
void Report_Findings(Report_Maker& report);
void Report_Site(Report_Maker& report);
void Report_Densities(Report_Maker& report);
void Report_Velocities(Report_Maker& report);
void Report_Material(Report_Maker& report);
void Report_Operation(Report_Maker& report);
void Report_Coefficients(Report_Maker& report);
void Report_Times(Report_Maker& report);
void Report_Evaluation(Report_Maker& report);
/// What the model input carries although no choice of the project uses it. The chapters before have
/// to be there.
void Report_Unused_Values(Report_Maker& report);
/// What is derived from the values while the model input is made.
void Report_As_Solved(Report_Maker& report);
/// What a screen holds and the model input does not. The chapters before have to be there.
void Report_Kept_Values(Report_Maker& report);
/// What the outputs of a run show, where they are of the project as it stands.
void Report_Results(Report_Maker& report);
/// The values at each grid point, as far as they vary.
void Report_Grids(Report_Maker& report);

/// How large a picture is drawn.
inline constexpr Canvas kReportCanvas = {620, 340, 12}, kReportMap = {620, 430, 12};

/// The sections of a report, in their order. Those that only tell what follows from the others are
/// left out where two projects are compared.
struct Report_Section {
  void (*write)(Report_Maker&);
  bool tells_entries = true;
};
inline constexpr Report_Section kReportSections[] = {
    {Report_Study},        {Report_Findings, false}, {Report_Site},
    {Report_Densities},    {Report_Velocities},      {Report_Material},
    {Report_Operation},    {Report_Evaluation},      {Report_Times},
    {Report_Coefficients}, {Report_Unused_Values},   {Report_As_Solved, false},
    {Report_Kept_Values},  {Report_Results, false},  {Report_Grids},
};

}  // namespace barvon
