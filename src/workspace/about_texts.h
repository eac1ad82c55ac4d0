#pragma once

namespace barvon {

/// What the program says about itself.

inline constexpr char kAboutTitle[] = "Dredged Material Released Into Open Water";
inline constexpr char kAboutVersion[] = "Version: 1.1";
inline constexpr char kAboutDescription[] =
    "BARVON is a workbench for engineers. It describes one release from a hopper dredge, a "
    "pipeline or a split-hull barge: the site, its water and currents, the material, the vessel "
    "and how it empties. It checks the description, keeps it in a text file, writes the model "
    "input, starts a solver on it and keeps what the solver writes.\n\n"
    "It serves general studies and evaluations under Section 103 (ocean sites) and Section "
    "404(b)(1) (US navigable waters).\n\n"
    "Licence: when it is passed on with the libraries it is built with, the GNU General Public "
    "License, version 3 or later, holds for the program as a whole.";
inline constexpr char kAboutDisclaimer[] =
    "Warning: Results are no substitute for measurements at the site, for the judgement of an "
    "engineer who knows it, or for the decision of the authority that grants a permit. Data "
    "without "
    "findings are not thereby right, and a result is only as good as the data and the solver "
    "behind "
    "it. The program comes without any warranty.";

inline constexpr char kMoreComputed[] =
    "What is computed here: the density of sea water from salinity and temperature, by the "
    "Knudsen-Ekman equation of state; bulk densities and the composition of a load; the average of "
    "a tidal pattern; a grid from a few typical values; and the dilutions that contaminants "
    "require.";
inline constexpr char kMoreLeft[] =
    "What is left to others: descent, collapse and diffusion belong to the solver, a program of "
    "its own whose documents count for its numerics. Where there is no external one it is the "
    "companion solver " BARVON_COMPANION_VERSION
    ", a model of its own from general fluid dynamics and not a validated code for permits. "
    "Pictures of its results belong to the graphics "
    "program. Criteria and standards are typed in; the program brings none.";
inline constexpr char kMoreReferences[] =
    "References:\n"
    "M. Knudsen, Hydrographical Tables, 1901.\n"
    "V. W. Ekman, Publications de Circonstance 43, 1908.\n"
    "Marine Protection, Research, and Sanctuaries Act, Section 103 (33 U.S.C. 1413).\n"
    "Clean Water Act, Section 404(b)(1) (33 U.S.C. 1344).";
/// Behind it the libraries in use are named with their versions.
inline constexpr char kMoreBuilt[] = "Built from the sources of version " BARVON_VERSION ", with ";
inline constexpr char kMorePlots[] = " (LGPL-3) and QCustomPlot (GPL-3 or later).";

}  // namespace barvon
