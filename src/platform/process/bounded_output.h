#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace barvon {

/// Keeps what a program prints, however much it is: the start and the end of it in a file that
/// never grows past a limit, the last lines in memory. When there is more, the middle is left out
/// and a line in the file says how much. A file that can't be written costs the file, nothing
/// else.
class Bounded_Output {
 public:
  Bounded_Output() = default;
  ~Bounded_Output();
  Bounded_Output(const Bounded_Output&) = delete;
  Bounded_Output& operator=(const Bounded_Output&) = delete;

  /// Removes what is under the name. The file itself is made when the first bytes come, and
  /// made anew, so that a link planted under its name leads nowhere. Limits below 1 KiB count as
  /// 1 KiB.
  void Begin(std::string path, std::size_t limit);
  void Add(std::string_view bytes);
  /// Adds the end to the file and closes it.
  void Finish();

  /// The last lines as they came, at most 4 KiB; a line that does not fit whole is left out
  /// unless it is the only one.
  std::string Last_Lines() const;

 private:
  void Write(std::string_view bytes);

  std::string path_;
  int descriptor_ = -1;
  bool made_ = false;
  std::size_t head_left_ = 0;   // bytes that still go straight to the file
  std::size_t tail_limit_ = 0;  // bytes of the end that the file has room for
  std::size_t left_out_ = 0;    // bytes that went by between the two
  std::string tail_;            // the end, up to twice the limit until it is cut
  std::string last_;
  bool last_is_cut_ = false;
};

}  // namespace barvon
