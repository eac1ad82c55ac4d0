#pragma once

namespace barvon {

// What a run makes in its application directory. Solvers know these names, in any case.

inline constexpr char kScratchName[] = "Tmpfile";
inline constexpr char kScratchFiles[] = "Tmpfile.*";
inline constexpr char kModelInputFile[] = "Tmpfile.Due";
/// What the model input can't carry; only where there is any.
inline constexpr char kAdditionsFile[] = "Tmpfile.Add";
/// What the solver prints; among the scratch files, so that the next run removes it.
inline constexpr char kPrintedFile[] = "Tmpfile.log";

/// There while a solver runs: one that is found before a run is of a program that was killed.
inline constexpr char kRunMark[] = "Tmpfile.run";

/// The file that tells the solver what to read, and how it spells the scratch name.
inline constexpr char kMarkerFile[] = "KOLBREE.TMP";
inline constexpr char kNameInMarker[] = "TmpFile";

}  // namespace barvon
