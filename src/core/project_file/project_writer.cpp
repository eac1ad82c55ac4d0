#include "core/project_file/project_writer.h"

#include "core/fluid_concentration.h"
#include "core/keys.h"
#include "core/project_file/column_reader.h"
#include "core/project_file/column_writer.h"
#include "core/project_file/exact_values.h"
#include "core/project_file/project_image.h"
#include "core/project_file/value_slots.h"
#include "platform/ask/progress_display.h"

namespace barvon {
namespace {

constexpr char kProjectTag[] = "   DUMP";
constexpr int kTracerSlot = 30;

/// The concentrations that follow from a contaminant in the sediment. They are kept as they are
/// when a count or a volume makes no sense: a save must not fail for them.
void Recompute_Concentrations(ProjectRecord& record) {
  if (!Contaminant_Is_In_The_Sediment(record)) return;
  Sediment_Tracer_Concentration(record, record.TracerConcentration);
  record.RealSlots[kTracerSlot] = record.TracerConcentration;
  const bool separated =
      record.LAYERS > 1 && record.DisposalMethod == kBarge && record.SeparationFlag == 1;
  if (separated) {
    Fluid_Concentration_Layered(record, record.FluidComputedConcentration);
  } else {
    Fluid_Concentration_Plain(record, record.FluidComputedConcentration);
  }
}

}  // namespace

std::string Save_Project(const std::string& path, ProjectRecord& record) {
  Progress_Display progress("Saving " + path);
  Recompute_Concentrations(record);
  record.FileTypeTag = kProjectTag;
  const Project_Image image = Image_Of(record);
  std::string text = Write_Columns(image, progress);
  const Columns_Read read_back = Read_Columns(text, kMaxGridPoints, nullptr);
  text += Exact_Value_Lines(image, read_back);
  return text;
}

}  // namespace barvon
