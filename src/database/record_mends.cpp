#include "database/record_mends.h"

#include <algorithm>
#include <map>
#include <set>

#include "database/data_columns.h"
#include "database/data_files.h"
#include "database/index_files.h"

namespace barvon {
namespace {

using Lines = std::vector<std::string>;

/// A record that the walk takes, and the lines that it reads of it.
struct Walked {
  std::size_t first = 0;
  Lines lines;
};

/// What the walk comes upon for each place of the list: it goes the same way for all of them. The
/// last line does not count as read.
std::map<int, Walked> Walked_Sites(const Lines& lines) {
  std::map<int, Walked> sites;
  std::set<int> met;
  for (std::size_t at = 0; at + 1 < lines.size();) {
    const std::size_t end =
        at + 1 + static_cast<std::size_t>(Site_Lines_Behind(Points_In(lines[at])));
    const int place = Place_Of_Code(Number_In(lines[at], data_columns::kCode));
    if (place >= 0 && met.insert(place).second && end < lines.size()) {
      const auto begin = lines.begin();
      sites[place] = {
          at, {begin + static_cast<std::ptrdiff_t>(at), begin + static_cast<std::ptrdiff_t>(end)}};
    }
    at = end;
  }
  return sites;
}

/// Chooses the mends of a scanned file.
class Mend_Choice {
 public:
  explicit Mend_Choice(Record_Scan& scan) : scan_(scan) { Choose_Sites(); }

  std::vector<Line_Edit> Edits() {
    const bool line_allowed = May_End_With_A_Line();
    std::vector<Line_Edit> edits = Edits_Of(sites_.size(), line_allowed);
    std::size_t count = sites_.size();
    if (!Keeps_The_Walk(edits)) {
      if (line_allowed) Tell_Of_Line(kLineOutOfStep);
      do {
        if (count == 0) return {};
        --count;
        Tell(scan_.records[sites_[count]].finding,
             "; the walk would then read a record behind it wrongly, so it stays as it is");
        edits = Edits_Of(count, false);
      } while (!Keeps_The_Walk(edits));
    }
    return edits;
  }

 private:
  static constexpr char kLineOutOfStep[] = "; the file is out of step before it, so none is added";

  void Tell(std::size_t finding, const std::string& reason) {
    scan_.findings[finding].text += reason;
  }

  void Tell_Of_Line(const char* reason) {
    Tell(static_cast<std::size_t>(scan_.line_missing), reason);
  }

  void Choose_Sites() {
    for (std::size_t i = 0; i < scan_.records.size(); ++i) {
      const Scanned_Record& record = scan_.records[i];
      in_step_ = in_step_ && !record.strays_before;
      if (!record.free) {
        in_step_ = in_step_ && record.complete && !record.blanks_before;
        continue;
      }
      const std::string reason = Reason_To_Leave(i);
      if (reason.empty()) {
        sites_.push_back(i);
      } else {
        Tell(record.finding, reason);
        in_step_ = false;
      }
    }
  }

  /// Why a site of the free layout can't be mended; "" when it can.
  std::string Reason_To_Leave(std::size_t at) const {
    const Scanned_Record& record = scan_.records[at];
    if (!record.whole) return "; it is not whole and stays as it is";
    if (!record.fits) return "; it does not fit into the columns and stays as it is";
    const auto same_code = std::ranges::count(scan_.records, record.place, &Scanned_Record::place);
    if (same_code > 1) return "; its code stands more than once, so it stays as it is";
    if (!in_step_) return "; the file is out of step before it, so it stays as it is";
    const bool strays_follow =
        at + 1 < scan_.records.size() ? scan_.records[at + 1].strays_before : scan_.strays_behind;
    return strays_follow ? "; no record begins behind it, so it stays as it is" : "";
  }

  bool May_End_With_A_Line() {
    if (scan_.line_missing < 0) return false;
    const Scanned_Record& last = scan_.records.back();
    const bool left = last.free && (sites_.empty() || sites_.back() + 1 != scan_.records.size());
    if (last.whole && !left && in_step_) return true;
    Tell_Of_Line(!last.whole ? "; the record is not whole, so none is added"
                 : left      ? "; the record stays as it is, so none is added"
                             : kLineOutOfStep);
    return false;
  }

  /// With the first so many of the sites.
  std::vector<Line_Edit> Edits_Of(std::size_t count, bool line_behind) const {
    std::vector<Line_Edit> edits;
    for (std::size_t i = 0; i < count; ++i) {
      const Scanned_Record& site = scan_.records[sites_[i]];
      // A line that stood behind the last record before the site was added would be one of its own.
      const std::size_t first = !site.blanks_before ? site.first
                                : sites_[i] == 0    ? 0
                                                    : scan_.records[sites_[i] - 1].end;
      edits.push_back({first, site.end, site.columned});
    }
    const std::size_t end = scan_.Lines().size();
    if (line_behind) edits.push_back({end, end, {""}});
    return edits;
  }

  /// Whether the walk finds after the edits what it found before, but for the sites that are
  /// mended, and nothing more than they and records that are whole.
  bool Keeps_The_Walk(const std::vector<Line_Edit>& edits) const {
    if (&scan_.Layout() != &kSiteLayout || edits.empty()) return true;
    const auto before = Walked_Sites(scan_.Lines());
    const auto after = Walked_Sites(Edited_Lines(scan_.Lines(), edits));
    const std::set<std::size_t> sound = Sound_Records(edits);
    const auto was_misread = [&](const Walked& site) {
      return std::ranges::any_of(edits, [&](const Line_Edit& edit) {
        return site.first >= edit.first && site.first < edit.end;
      });
    };
    const auto stays = [&](const auto& place_and_site) {
      const auto& [place, site] = place_and_site;
      const auto same = after.find(place);
      return was_misread(site) || (same != after.end() && same->second.lines == site.lines);
    };
    const auto is_sound = [&](const auto& place_and_site) {
      const auto& [place, site] = place_and_site;
      const auto same = before.find(place);
      const bool is_kept = same != before.end() && !was_misread(same->second);
      return is_kept || sound.contains(site.first);
    };
    return std::ranges::all_of(before, stays) && std::ranges::all_of(after, is_sound);
  }

  /// Where the records begin after the edits that are in columns and whole.
  std::set<std::size_t> Sound_Records(const std::vector<Line_Edit>& edits) const {
    std::set<std::size_t> sound;
    std::size_t lines = 0, taken = 0;  // that the edits made so far have, and took away
    auto edit = edits.begin();
    for (const Scanned_Record& record : scan_.records) {
      const bool mended = edit != edits.end() && record.free && record.end == edit->end;
      const std::size_t first = mended ? edit->first : record.first;
      if (mended || (record.whole && !record.free)) sound.insert(first + lines - taken);
      if (mended) {
        lines += edit->lines.size();
        taken += edit->end - edit->first;
        ++edit;
      }
    }
    return sound;
  }

  Record_Scan& scan_;
  std::vector<std::size_t> sites_;  // the records that can be mended
  bool in_step_ = true;             // up to the end of the file once they are
};

}  // namespace

std::vector<Line_Edit> Record_Mends(Record_Scan& scan) { return Mend_Choice(scan).Edits(); }

std::vector<std::string> Edited_Lines(const std::vector<std::string>& lines,
                                      const std::vector<Line_Edit>& edits) {
  Lines edited;
  std::size_t at = 0;
  const auto copy_up_to = [&](std::size_t end) {
    while (at < end) edited.push_back(lines[at++]);
  };
  for (const Line_Edit& edit : edits) {
    copy_up_to(edit.first);
    edited.insert(edited.end(), edit.lines.begin(), edit.lines.end());
    at = edit.end;
  }
  copy_up_to(lines.size());
  return edited;
}

}  // namespace barvon
