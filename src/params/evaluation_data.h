#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/project_record.h"
#include "params/evaluation_fields.h"
#include "pictures/drawings/site_plan_drawing.h"

namespace barvon {

/// What frmMdlkyn shows for the evaluation, and how it calls it.
struct Evaluation_Shape {
  std::string caption;
  bool tracer = false;                  // fraGeneral
  bool boundary = true;                 // mixzone
  bool zid = false;                     // the second tab
  bool size_note = true;                // SSFrame1
  std::string boundary_caption;         // of mixzone
  std::string upper_left, lower_right;  // Label(0), Label(3)
  std::string zid_note;                 // Text3
};

/// `led`: the error list has led to the screen. Its findings may be of corners that an evaluation
/// without a boundary does not show otherwise.
Evaluation_Shape Shape_Of_Evaluation(const ProjectRecord& record, bool led);

/// What frmMdlkyn holds.
struct Evaluation_Input {
  Field_Texts texts;      // as typed
  bool Check3D1 = false;  // a Zone of Initial Dilution is wanted
};

/// What Cancel brings back: the values that the screen has written while it was open, as they were
/// before. Nothing for those that it has not.
struct Evaluation_Copy {
  std::optional<std::int16_t> ZidFlag;
  std::optional<double> NumOutputDepths;
  OneBased<std::optional<double>, kMaxOutputDepths> OutputDepths{};
};
void Reset_Vars(const Evaluation_Copy& copy, ProjectRecord& record);

/// Before the screen fills itself: a number of output depths that is none from 1 to
/// kMaxOutputDepths is brought in, without a message.
void Hold_Output_Count(ProjectRecord& record);
/// What Text8(5) shows.
std::string Output_Count_Text(const ProjectRecord& record);

/// The number of output depths that is typed, rounded half to even; nothing for one that is not
/// from 1 to kMaxOutputDepths.
std::optional<int> Entered_Output_Count(const std::string& typed);
/// The box for such a number.
void Tell_Output_Count();

/// A click on Check3D1: the record has it at once.
void Choose_Zid(bool wanted, Evaluation_Copy& copy, ProjectRecord& record);
/// Text8(5) has changed: the record has the number at once; one out of range goes nowhere.
void Take_Output_Count(const std::string& typed, Evaluation_Copy& copy, ProjectRecord& record);
/// One of the depths, Text8(`index`), has changed: the record has it at once. With the text that it
/// was filled with again, it is the value from before that comes back, with all its digits.
void Take_Output_Depth(int index, const Field_Texts& texts, Evaluation_Copy& copy,
                       ProjectRecord& record);

/// The concentration in the fluid that the contaminant of the sediment makes (mg/l), as Text2 holds
/// it, with six decimals: the sum over solids of SolidSG x SedimentConcentration x
/// SolidVolFraction, added up in single precision.
std::string Derived_Concentration(const ProjectRecord& record);

/// OK. Only what the evaluation shows is stored. A toxicity evaluation has its tracer fixed:
/// "FLUID", 100 mg/l over 0. A number of output depths above kMaxOutputDepths counts as that, a
/// negative one as 1; 0 is stored.
void Save_Evaluation(const Evaluation_Input& input, bool boundary, ProjectRecord& record);

/// The site with boundary and Zone of Initial Dilution as they are typed, for the picture. Corners
/// that are all 0 are for the solver to find: they are not drawn.
Site_Plan Entered_Site(const Evaluation_Input& input, bool boundary, const ProjectRecord& record);

/// A corner that the plan can put somewhere: the fields of its distances from the top and from the
/// left.
struct Plan_Corner {
  Control_Name top{"Text", kCornerTop}, left{"Text", kCornerLeft};

  bool operator==(const Plan_Corner&) const = default;
};
/// The corner that a field of Text or Text5 belongs to.
Plan_Corner Corner_Of(const Control_Name& field);
/// "the upper left corner of the mixing zone".
std::string Words_Of(const Plan_Corner& corner, const ProjectRecord& record);

}  // namespace barvon
