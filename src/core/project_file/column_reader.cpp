#include "core/project_file/column_reader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "core/number_text.h"
#include "core/project_file/column_layout.h"
#include "core/project_file/value_slots.h"
#include "core/short_decimal.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

using Part = Image_Number::Part;

/// One more than the writer's: the program's files are read like this, and values fit.
constexpr std::size_t kRealWidth = 12;
constexpr double kOtherFlag = 9999;

/// Goes through the bytes line by line, then number by number.
class Text_Source {
 public:
  explicit Text_Source(std::string_view bytes) : rest_(bytes) {}

  bool At_End() const { return rest_.find_first_not_of(" \t\r\n\x1A") == std::string_view::npos; }

  /// The next line without its end; nothing at the end of the file.
  std::optional<std::string_view> Line() {
    if (rest_.empty()) return std::nullopt;
    const auto end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
  }

  /// The next number between delimiters where it is a short decimal, as nearly all are; otherwise
  /// false, and it is left to Token.
  bool Short_Number(double& value) {
    const char* at = rest_.data();
    const char* const end = at + rest_.size();
    while (at != end && (Is_Blank(*at) || Ends_Line(*at))) ++at;
    if (!Read_Short_Decimal(at, end, value)) return false;
    if (at != end && !Is_Blank(*at) && !Ends_Line(*at) && *at != ',') return false;
    while (at != end && Is_Blank(*at)) ++at;
    if (at != end && *at == ',') ++at;
    rest_ = {at, static_cast<std::size_t>(end - at)};
    return true;
  }

  /// The next text between delimiters; nothing at the end of the file. Line ends count as
  /// delimiters, and so do commas.
  std::optional<std::string_view> Token() {
    const auto first = rest_.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return std::nullopt;
    rest_.remove_prefix(first);
    const auto end = std::min(rest_.find_first_of(" \t\r\n,"), rest_.size());
    const std::string_view token = rest_.substr(0, end);
    rest_.remove_prefix(end);
    const auto next = rest_.find_first_not_of(" \t");
    if (next != std::string_view::npos && rest_[next] == ',') rest_.remove_prefix(next + 1);
    return token;
  }

 private:
  static bool Is_Blank(char c) { return c == ' ' || c == '\t'; }
  static bool Ends_Line(char c) { return c == '\r' || c == '\n'; }

  std::string_view rest_;
};

std::string_view Columns(std::string_view line, std::size_t first, std::size_t count) {
  return first < line.size() ? line.substr(first, count) : std::string_view();
}

std::size_t Width_Of(std::string_view line) {
  const auto last = line.find_last_not_of(" \t");
  return last == std::string_view::npos ? 0 : last + 1;
}

/// A velocity that runs into its neighbour ("0.123456-0.12345") is no number: taking its start
/// would shift every value that follows.
bool Is_Number(std::string_view token) {
  if (token.find_first_not_of("0123456789+-.eEdD") != std::string_view::npos) return false;
  const auto exponent = std::min(token.find_first_of("eEdD"), token.size());
  const std::string_view mantissa = token.substr(0, exponent);
  const std::string_view power = exponent < token.size() ? token.substr(exponent + 1) : "0";
  const auto digits_only = [](std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
  };
  const auto unsigned_part = [](std::string_view text) {
    return !text.empty() && (text.front() == '+' || text.front() == '-') ? text.substr(1) : text;
  };
  const std::string_view value = unsigned_part(mantissa);
  const auto point = std::min(value.find('.'), value.size());
  const std::string_view fraction = point < value.size() ? value.substr(point + 1) : "";
  return point + fraction.size() > 0 && digits_only(value.substr(0, point)) &&
         digits_only(fraction) && !unsigned_part(power).empty() &&
         digits_only(unsigned_part(power));
}

class Column_Reader {
 public:
  Column_Reader(std::string_view bytes, int n, Progress_Display* progress, Columns_Read& result)
      : source_(bytes), n_(n), progress_(progress), result_(result) {
    result_.given.resize(Image_Numbers().size());
  }

  void Read() {
    try {
      Read_Head();
      Read_Reals();
      Read_Text_Lines();
      Read_Velocity_Field(Part::FieldX, result_.image.VelocityFieldX);
      Read_Velocity_Field(Part::FieldZ, result_.image.VelocityFieldZ);
      if (n_ == kMaxGridPoints) Read_Tail();
    } catch (const Run_Time_Failure& stopped) {
      Note(stopped.failure);
    }
    result_.at_end = source_.At_End();
  }

 private:
  void Note(Failure failure) {
    if (result_.failure == Failure::None) result_.failure = failure;
  }

  std::string_view Next_Line() {
    const auto line = source_.Line();
    if (!line) throw Run_Time_Failure{Failure::Input_Past_End};
    return *line;
  }

  /// `index` is the number's place among the marks.
  void Take_Column(double& number, std::size_t index, std::string_view columns) {
    try {
      number = Column_Number(columns);
      result_.given[index] = true;
    } catch (const Run_Time_Failure& stopped) {
      Note(stopped.failure);
    }
  }

  /// Takes the next free-form number. Failure::None when it was given.
  Failure Take_Token(double& number, std::size_t index, bool narrow) {
    double value = 0;
    if (!source_.Short_Number(value)) {
      const auto token = source_.Token();
      if (!token) return Failure::Input_Past_End;
      if (!Is_Number(*token)) return Failure::Type_Mismatch;
      try {
        value = Column_Number(*token);
      } catch (const Run_Time_Failure& stopped) {
        return stopped.failure;
      }
    }
    if (narrow) value = static_cast<double>(static_cast<float>(value));
    if (!std::isfinite(value)) return Failure::Overflow;
    number = value;
    result_.given[index] = true;
    return Failure::None;
  }

  void Read_Head() {
    const std::string_view first = Next_Line();
    const auto found = first.find(kFileTag);
    // Without the tag everything counts from the line's start; that alone stops no load.
    const std::size_t tag = found == std::string_view::npos ? 0 : found;
    const std::size_t method = found == std::string_view::npos ? kFileTag.size() : found + 5;
    result_.image.FileTypeTag = From_File_Bytes(Columns(first, tag, kFileTag.size()));
    try {
      result_.image.DisposalMethod = Column_Number(Columns(first, method, 20));
    } catch (const Run_Time_Failure& stopped) {
      Note(stopped.failure);
    }
    result_.image.ProjectTitle =
        Trimmed_Right(From_File_Bytes(Columns(Next_Line(), 0, kTitleLength)));
    for (const auto& [first_slot, last_slot] : kIntLines) {
      const std::string_view line = Next_Line();
      for (int slot = first_slot; slot <= last_slot; ++slot) {
        Take_Column(result_.image.IntSlots[slot], Index_Of({Part::IntSlots, slot, 0}),
                    Columns(line, (slot - first_slot) * kIntWidth, kIntWidth));
      }
    }
  }

  void Read_Reals() {
    const int reals = kFirstDepthSlot - 1 + n_ * n_;
    const int lines = reals / kRealsPerLine;
    const double total = 10.0 + lines;
    std::size_t index = Index_Of({Part::RealSlots, 1, 0});
    int slot = 1;
    for (int line = 1; line <= lines + 1; ++line) {
      const std::string_view text = Next_Line();
      for (std::size_t k = 0; k < kRealsPerLine && slot <= reals; ++k, ++slot, ++index) {
        Take_Column(result_.image.RealSlots[slot], index,
                    Columns(text, k * kRealWidth, kRealWidth));
      }
      if (progress_ != nullptr && line % kLinesAMove == 0) progress_->Move(line / total);
    }
  }

  void Read_Text_Lines() {
    const std::string_view names = Next_Line();
    for (std::size_t i = 1; i <= kSolidEntries; ++i) {
      result_.image.SolidNames[i] =
          Trimmed(From_File_Bytes(Columns(names, (i - 1) * kNameWidth, kNameWidth)));
    }
    const std::string_view status = Next_Line();
    for (std::size_t i = 1; i <= kStatusLength; ++i) {
      result_.image.SectionStatus[i] = i <= status.size() ? status[i - 1] : ' ';
    }
    const std::string_view flags = Next_Line();
    for (int i = 1; i <= static_cast<int>(kFlagCount); ++i) {
      const Image_Number number{Part::Flags, i, 0};
      const std::string_view letter = Columns(flags, i - 1, 1);
      // A missing character reads as 0, like every field that a line is too short for.
      const bool clear = letter.empty() || letter == "F";
      Number_In(result_.image, number) = clear ? kFalse : letter == "T" ? kTrue : kOtherFlag;
      result_.given[Index_Of(number)] = true;
    }
    result_.text_lines_too_wide = Width_Of(status) > kStatusLength && Width_Of(flags) > kFlagCount;
  }

  void Read_Velocity_Field(Part part, Grid& field) {
    for (int a = 1; a <= n_; ++a) {
      std::size_t index = Index_Of({part, a, 1});
      for (int b = 1; b <= n_; ++b, ++index) {
        const Failure failure = Take_Token(field[a][b], index, false);
        if (failure == Failure::Input_Past_End) throw Run_Time_Failure{failure};
        if (failure != Failure::None) Note(failure);
      }
    }
  }

  /// One statement of the tail. What can't be read leaves its values as not given, and the next
  /// statement starts on the next line, so that one bad value does not shift all that follow.
  void Read_Tail_Statement(const std::vector<Image_Number>& numbers) {
    for (const Image_Number& number : numbers) {
      double& value = Number_In(result_.image, number);
      if (Take_Token(value, Index_Of(number), Is_Narrow(number)) != Failure::None) {
        source_.Line();
        return;
      }
    }
  }

  void Read_Tail() {
    Read_Tail_Statement(
        {{Part::TidalStart}, {Part::TidalDepth}, {Part::TidalAverageX}, {Part::TidalAverageZ}});
    for (int i = 1; i <= kTidalRows; ++i) {
      Read_Tail_Statement({{Part::Tide, i, 1}, {Part::Tide, i, 2}});
    }
    Read_Tail_Statement({{Part::Key4}});
  }

  Text_Source source_;
  int n_;
  Progress_Display* progress_;
  Columns_Read& result_;
};

}  // namespace

Columns_Read Read_Columns(std::string_view bytes, int n, Progress_Display* progress) {
  Columns_Read read;
  Column_Reader(bytes, n, progress, read).Read();
  return read;
}

}  // namespace barvon
