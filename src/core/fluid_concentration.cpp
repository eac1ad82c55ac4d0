#include "core/fluid_concentration.h"

namespace barvon {

Failure Fluid_Concentration_Plain(const ProjectRecord&, double&) { return Failure::None; }
Failure Fluid_Concentration_Layered(const ProjectRecord&, double&) { return Failure::None; }
Failure Sediment_Tracer_Concentration(const ProjectRecord&, double&) { return Failure::None; }

}  // namespace barvon
