#pragma once

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// Contaminant in the fluid of a load whose contaminant is given in the sediment (KEY3 4 and 7),
/// mg/l: the sum over solids of SedimentConcentration x SolidSG x SolidVolFraction. Solids that
/// are next to nothing are passed over. Without solids, and with no more than 0.0001 mg/kg in the
/// sediment, it is 0: a concentration of an earlier project must not reach the solver. `result` is
/// left alone when KEY3 is another. Subscript when NumSolids is beyond the record's entries.
Failure Fluid_Concentration_Plain(const ProjectRecord& record, double& result);

/// The same for separated layers: weighted by LayerSolidFraction and LayerVolume over the total
/// volume of the layers. Layers that hold no solids at all give 0, whatever their total;
/// otherwise Division_By_Zero when that total is 0. Subscript when NumSolids or LAYERS is beyond
/// the record's entries. `result` is left alone on a failure.
Failure Fluid_Concentration_Layered(const ProjectRecord& record, double& result);

/// The tracer concentration that the solids carry, without guards: what a save and the model
/// input store for KEY3 4 and 7. Subscript as above.
Failure Sediment_Tracer_Concentration(const ProjectRecord& record, double& result);

}  // namespace barvon
