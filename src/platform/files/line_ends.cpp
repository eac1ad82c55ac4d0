#include "platform/files/line_ends.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace barvon {
namespace {

struct Line {
  std::string_view text;
  std::string_view end;  // "" for the last line
};

/// The lines of a text; behind the last line end one more, which may be empty.
std::vector<Line> Lines_Of(std::string_view text) {
  std::vector<Line> lines;
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] != '\n' && text[at] != '\r') {
      ++at;
      continue;
    }
    const std::size_t length = text.substr(at).starts_with("\r\n") ? 2 : 1;
    lines.push_back({text.substr(start, at - start), text.substr(at, length)});
    start = at += length;
  }
  lines.push_back({text.substr(start), {}});
  return lines;
}

std::string_view Prevailing(const std::vector<Line>& lines) {
  struct Kind {
    std::string_view end;
    std::ptrdiff_t count = 0;
  };
  std::vector<Kind> kinds;  // in the order of the text
  for (const Line& line : lines) {
    if (line.end.empty()) continue;
    auto kind = std::ranges::find(kinds, line.end, &Kind::end);
    if (kind == kinds.end()) kind = kinds.insert(kind, {line.end});
    ++kind->count;
  }
  const auto best = std::ranges::max_element(kinds, {}, &Kind::count);
  return best == kinds.end() ? std::string_view(kUsualLineEnd) : best->end;
}

bool Have_One_End(const std::vector<Line>& lines) {
  return std::all_of(lines.begin(), lines.end() - 1,
                     [&](const Line& line) { return line.end == lines.front().end; });
}

constexpr std::ptrdiff_t kMostEdits = 2000;  // beyond that lines are matched by their place

/// Of every line of `now` the line of `former` that it is; kNone for one that is new. The shortest
/// list of insertions and deletions, after E. W. Myers, "An O(ND) Difference Algorithm and Its
/// Variations", Algorithmica 1 (1986). Equal ends of both are matched before, for speed.
constexpr std::ptrdiff_t kNone = -1;

class Line_Match {
 public:
  Line_Match(const std::vector<Line>& former, const std::vector<Line>& now)
      : former_(former), now_(now), match_(now.size(), kNone) {
    std::ptrdiff_t first = 0;
    std::ptrdiff_t former_end = std::ssize(former);
    std::ptrdiff_t now_end = std::ssize(now);
    while (first < former_end && first < now_end && Same(first, first))
      Match(first, first), ++first;
    while (former_end > first && now_end > first && Same(former_end - 1, now_end - 1)) {
      Match(--former_end, --now_end);
    }
    Match_Between(first, former_end, now_end);
  }

  const std::vector<std::ptrdiff_t>& match() const { return match_; }

 private:
  bool Same(std::ptrdiff_t a, std::ptrdiff_t b) const {
    return former_[static_cast<std::size_t>(a)].text == now_[static_cast<std::size_t>(b)].text;
  }
  void Match(std::ptrdiff_t a, std::ptrdiff_t b) { match_[static_cast<std::size_t>(b)] = a; }

  void Match_Between(std::ptrdiff_t first, std::ptrdiff_t former_end, std::ptrdiff_t now_end) {
    const std::ptrdiff_t n = former_end - first;
    const std::ptrdiff_t m = now_end - first;
    const std::ptrdiff_t most = std::min(n + m, kMostEdits);
    // reach[d][k + d]: how far into `former` d edits lead on the diagonal k.
    std::vector<std::vector<std::ptrdiff_t>> reach;
    for (std::ptrdiff_t d = 0; d <= most; ++d) {
      reach.emplace_back(static_cast<std::size_t>(2 * d + 1));
      for (std::ptrdiff_t k = -d; k <= d; k += 2) {
        std::ptrdiff_t x = d == 0 ? 0 : Step(reach[static_cast<std::size_t>(d - 1)], d, k).first;
        while (x < n && x - k < m && x - k >= 0 && Same(first + x, first + x - k)) ++x;
        reach.back()[static_cast<std::size_t>(k + d)] = x;
        if (x >= n && x - k >= m) {
          Walk_Back(reach, first, n, m);
          return;
        }
      }
    }
  }

  /// Where the d-th edit to diagonal k ends, and the diagonal that it comes from.
  static std::pair<std::ptrdiff_t, std::ptrdiff_t> Step(const std::vector<std::ptrdiff_t>& before,
                                                        std::ptrdiff_t d, std::ptrdiff_t k) {
    const auto reached = [&](std::ptrdiff_t diagonal) {
      return before[static_cast<std::size_t>(diagonal + d - 1)];
    };
    const bool down = k == -d || (k != d && reached(k - 1) < reached(k + 1));
    return down ? std::pair(reached(k + 1), k + 1) : std::pair(reached(k - 1) + 1, k - 1);
  }

  void Walk_Back(const std::vector<std::vector<std::ptrdiff_t>>& reach, std::ptrdiff_t first,
                 std::ptrdiff_t n, std::ptrdiff_t m) {
    std::ptrdiff_t x = n;
    std::ptrdiff_t k = n - m;
    for (std::ptrdiff_t d = std::ssize(reach) - 1; d >= 0; --d) {
      const auto [start, from] = d == 0 ? std::pair<std::ptrdiff_t, std::ptrdiff_t>(0, 0)
                                        : Step(reach[static_cast<std::size_t>(d - 1)], d, k);
      for (; x > start; --x) Match(first + x - 1, first + x - 1 - k);
      if (d == 0) return;
      x = reach[static_cast<std::size_t>(d - 1)][static_cast<std::size_t>(from + d - 1)];
      k = from;
    }
  }

  const std::vector<Line>& former_;
  const std::vector<Line>& now_;
  std::vector<std::ptrdiff_t> match_;
};

}  // namespace

std::string With_Line_Feeds(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r') {
      lines += text[at];
    } else if (!text.substr(at).starts_with("\r\n")) {
      lines += '\n';
    }
  }
  return lines;
}

std::string Prevailing_Line_End(std::string_view text) {
  return std::string(Prevailing(Lines_Of(text)));
}

std::string With_Former_Line_Ends(std::string_view former, std::string_view edited) {
  const std::vector<Line> before = Lines_Of(former);
  const std::vector<Line> lines = Lines_Of(edited);
  const std::string_view usual = Prevailing(before);
  std::string text;
  text.reserve(edited.size() + lines.size());
  if (Have_One_End(before)) {
    for (const Line& line : lines) text.append(line.text).append(line.end.empty() ? "" : usual);
    return text;
  }
  const std::vector<std::ptrdiff_t> match = Line_Match(before, lines).match();
  std::vector<bool> stands(before.size());
  for (const std::ptrdiff_t own : match) {
    if (own != kNone) stands[static_cast<std::size_t>(own)] = true;
  }
  std::size_t next = 0;  // of `before`, behind the last line that was used
  for (std::size_t i = 0; i < lines.size(); ++i) {
    text += lines[i].text;
    if (i + 1 == lines.size()) break;
    std::string_view end;
    if (match[i] != kNone) {
      next = static_cast<std::size_t>(match[i]) + 1;
      end = before[next - 1].end;
    } else if (next < before.size() && !stands[next]) {
      end = before[next++].end;
    }
    if (end.empty()) end = usual;
    // Behind a carriage return a line feed alone would be the rest of one line end.
    const bool would_join = end == "\n" && lines[i].text.empty() && text.ends_with('\r');
    text += would_join ? std::string_view("\r\n") : end;
  }
  return text;
}

}  // namespace barvon
