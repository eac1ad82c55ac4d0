#pragma once

#include <cstdint>
#include <string>

#include "results/result_reader.h"

namespace barvon {

/// What the window says where it shows no picture.
struct Graph_Notice {
  std::string words;
  std::string listing;  // the path of a text that can be read instead; empty: none
};

Graph_Notice Notice_Of_Nothing();
/// Of outputs that can't be shown. `path` is the project or output that was asked for.
Graph_Notice Notice_Of(const Result_Problem& problem, const std::string& path);

/// "2026-11-22 12:03", by the clock of this place.
std::string Clock_Text(std::int64_t seconds);
/// Whose results they are: "Bay of Sand  (site.DUI, run of 2026-11-22 12:03)".
std::string Title_Line(const Results& results);
/// Of the window: "BARVON Graphics - site.DUI".
std::string Window_Caption(const std::string& path);
/// For the status line.
std::string Fresh_Words(const Results& results);
std::string Kept_Words(const Result_Problem& problem, const Results& shown);
/// The comparison with `path` is over, since another project was opened.
std::string Ended_Words(const std::string& path);
/// What is told of the one outputs and of those beside them, either of which may be empty: "New
/// outputs of a.DUI, run of 2026-11-22 12:03; of b.DUI, run of 2026-11-22 12:04".
std::string Words_Of_Both(const std::string& own, const std::string& other);

}  // namespace barvon
