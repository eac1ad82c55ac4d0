#pragma once

#include <functional>
#include <string>
#include <vector>

namespace barvon {

/// The tips, in the program's folder: plain text, one tip a line.
inline constexpr char kTipsFile[] = "TIPOFDAY.TXT";

/// The tips of a file, as UTF-8, and the one in view.
struct Tip_Collection {
  std::vector<std::string> tips;
  int current = 0;  // from 1; 0 before the first one
};

/// Reads every line of the file and goes to a first tip. The name is found in any case; line ends
/// and encoding are those of any system. False, and the collection as it was, for an empty name and
/// for a file that is not there or can't be read. A file without a line is loaded and has no tip.
bool LoadTips(const std::string& file_name, Tip_Collection& collection);

/// Goes to a tip by chance, which may be the one in view.
void Next_Tip(Tip_Collection& collection);

/// The tip in view; nothing when there is none.
std::string Current_Tip(const Tip_Collection& collection);

/// What stands in a tip's place while the file is missing.
std::string Missing_Tips_Text();

/// Numbers from 0 to below 1. Puts another source in place of the program's, which begins elsewhere
/// at each start, and returns the one that was there.
using Chance = std::function<double()>;
Chance Set_Tip_Chance(Chance chance);

/// Whether tips are wanted at the start: BARVON.INI says so once the box has been ticked.
bool Tips_At_Start_Wanted();

/// Keeps the choice in BARVON.INI as 1 or 0. Where the file can't be written the user is told.
void Choose_Tips_At_Start(bool wanted);

/// Opens the tips if they are wanted at the start. They block nothing: whatever the user does first
/// goes its way behind them.
void Open_Tips_At_Start();

}  // namespace barvon
