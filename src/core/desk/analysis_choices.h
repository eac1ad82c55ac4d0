#pragma once

#include <array>
#include <cstdint>

namespace barvon {

// How the choices of a study read, on the main window and wherever else they are made. The option
// of an index stands for the same on both.

/// The groups of options.
inline constexpr char kAnalysisFrame[] = "Type of Analysis", kMethodFrame[] = "Method of Disposal",
                      kSimulationFrame[] = "Simulation Type",
                      kEvaluationFrame[] = "Evaluation Type",
                      kVelocityTypeFrame[] = "Type of Velocity";

inline constexpr std::array<const char*, 3> kAnalysisCaptions = {
    "General Open Water Disposal Analysis", "Section 103 Regulatory Analysis for Ocean Sites",
    "Section 404(b)(1) Regulatory Analysis for US Navigable Waters"};

inline constexpr std::array<const char*, 2> kMethodCaptions = {
    "Disposal from a Multiple Bin Hopper Dredge", "Disposal from a Split-Hull Barge or Scow"};

/// The options of the simulation type.
enum Simulation_Choice { kWithoutDiffusion, kWithDiffusion };
inline constexpr std::array<const char*, 2> kSimulationCaptions = {
    "Descent and Collapse", "Descent, Collapse and Diffusion"};

/// How the evaluation group reads for a type of analysis. An option without a caption is hidden
/// and keeps the one that it has.
using Evaluation_Captions = std::array<const char*, 3>;
const Evaluation_Captions& Evaluation_Captions_Of(std::int16_t analysis_type);

/// Asks whether variable depth is to go for the sake of a two-point profile. True for Yes.
bool Ask_To_Disable_Variable_Depth();

}  // namespace barvon
