#pragma once

#include <cstdint>
#include <optional>

#include "core/project_record.h"

namespace barvon {

// The numbers of the record that stand for a choice, and the questions that are asked of them. The
// fields hold whatever a file gave them: any other number is none of these.

/// DisposalMethod.
enum Disposal_Method : std::int16_t {
  kHopper = 1,
  kContinuous = 2,      // pipeline; the main window can't choose it
  kBarge = 3,           // or scow
  kMethodOfSolvers = 4  // only the solver table knows it
};

/// AnalysisType.
enum Analysis_Type : std::int16_t {
  kNoAnalysis = 0,
  kOpenWater = 1,       // general
  kOceanSites = 2,      // Section 103
  kNavigableWaters = 3  // Section 404(b)(1)
};
inline constexpr int kAnalysisTypes = 3;

/// KEY2, the type of simulation.
enum Simulation : std::int16_t {
  kDiffusion = 0,    // descent and collapse, then diffusion
  kStillVessel = 1,  // the model input of a continuous discharge from a vessel that lies still
  kDescentAndCollapse = 2  // no diffusion
};

/// KEY3, what is evaluated.
enum Evaluation : std::int16_t {
  kNoTracer = 0,  // of open water; without diffusion of every type
  kTracer = 1,    // of open water
  kOceanWaterQuality = 2,
  kOceanToxicity = 3,
  kOceanFurtherTesting = 4,
  kNavigableWaterQuality = 5,
  kNavigableToxicity = 6,
  kNavigableFurtherTesting = 7
};

/// KEY4 when it is not an analysis type with a method, see KEY4_Of.
inline constexpr std::int16_t kNoStudy = 0;
inline constexpr std::int16_t kDilutionStudy = 7;

/// FileKind, an integer in a real.
inline constexpr int kDilutionKind = 1;
inline constexpr int kProjectKind = 2;
inline constexpr int kFormerProjectKind = 3;  // runs as a project does; nothing sets it

/// A vessel that empties: hopper or barge.
bool Has_Vessel(const ProjectRecord& record);

/// Whether a project's model can be run; a dilution project is none.
bool Is_Model_Project(const ProjectRecord& record);

/// Whether the analysis follows one of the two Sections, so that a boundary is given.
bool Is_Regulatory(const ProjectRecord& record);
/// Of the evaluations with a boundary, those of ocean sites speak of a disposal site, the others
/// of a mixing zone.
bool Speaks_Of_Disposal_Site(const ProjectRecord& record);
/// Whether the evaluation can have a Zone of Initial Dilution: those of navigable waters.
bool Offers_Zid(const ProjectRecord& record);
/// What is compared is the dilution of a toxic load, not a concentration.
bool Compares_Toxicity(const ProjectRecord& record);
/// A Zone of Initial Dilution is evaluated. Only navigable waters have one, whatever ZidFlag says.
bool Has_Zid(const ProjectRecord& record);
/// The contaminant is given in the sediment, and the concentration in the fluid follows from it.
bool Contaminant_Is_In_The_Sediment(const ProjectRecord& record);

bool Is_Analysis_Type(std::int16_t analysis_type);

/// The evaluations that a type of analysis offers, in the order of their options: further testing,
/// water quality, toxicity; of open water no tracer and tracer. 0 for any other type.
int Evaluations_Of(std::int16_t analysis_type);
/// KEY3 of an evaluation from 0 on. Nothing for one that the type does not offer.
std::optional<std::int16_t> KEY3_Of(std::int16_t analysis_type, int evaluation);
/// The option that KEY3 is of its type of analysis, from 0; -1 for none.
int Evaluation_Option(std::int16_t key3);
/// The type of analysis that offers KEY3; kNoAnalysis for none.
std::int16_t Analysis_Type_Of_KEY3(std::int16_t key3);

/// KEY4 of a type of analysis with a method: 1 and 2 for open water, 3 and 4, 5 and 6, hopper
/// first. Nothing for another type or another method.
std::optional<std::int16_t> KEY4_Of(std::int16_t analysis_type, std::int16_t disposal_method);
/// The type of analysis that KEY4 holds; kNoAnalysis for none.
std::int16_t Analysis_Type_Of_KEY4(std::int16_t key4);

}  // namespace barvon
