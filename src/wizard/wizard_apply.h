#pragma once

#include <memory>

#include "core/desk/screen_table.h"
#include "core/project_record.h"
#include "wizard/wizard_entry.h"

namespace barvon {

// What the wizard writes to the record, and how it comes back.

/// The record as it stood at a moment of the walk.
class Wizard_Copy {
 public:
  explicit Wizard_Copy(const ProjectRecord& record);

  /// Puts back whatever the wizard writes, and what the screens that it opens make of it before
  /// anything is accepted: choices and keys, grid, depth and densities, velocity type and duration,
  /// vessel, boundary, and the contaminant, which goes when a project without diffusion is shown.
  void Bring_Back(ProjectRecord& record) const;
  /// The contaminant alone.
  void Bring_Back_Contaminant(ProjectRecord& record) const;

  /// OK of the screen: what it accepted is not to come back as it was before.
  void Keep_Accepted(const Screen_Row& screen, const ProjectRecord& record);
  /// Brings back what still is as the wizard has left it: what somebody else has changed since is
  /// not the wizard's.
  void Bring_Back_What_Stands(const ProjectRecord& left, ProjectRecord& record) const;

 private:
  std::unique_ptr<ProjectRecord> former_;
};

/// The type of analysis, the method and the keys that the options stand for.
void Write_Choices(const Wizard_Entry& entry, ProjectRecord& record);

/// What screens of this walk have accepted, which the wizard leaves alone at its end. A duration
/// that is typed on its page later counts again.
struct Accepted_Data {
  bool depth = false, duration = false, velocity = false;
};

/// "Finished": the choices, velocity type, depth of a constant depth grid, duration and title go to
/// the record, and the main window shows it. A type with a logarithmic profile keeps it.
void ApplyWizardToProject(const Wizard_Entry& entry, const Accepted_Data& accepted,
                          ProjectRecord& record);

/// Before the wizard opens over a pipeline project, which it would make one of a barge. False: the
/// user wants it to stay one of a pipeline.
bool Ask_To_Leave_The_Pipeline();

/// Behind "Finished": a remark when the time step is lacking, which the wizard does not ask for.
void Remark_On_Time_Step(const ProjectRecord& record);

/// Behind it: a two-point profile over varying depths is asked about. True when the user wants to
/// make the depth constant.
bool Ask_About_Two_Points(const ProjectRecord& record);

}  // namespace barvon
