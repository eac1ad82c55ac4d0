#include "fuzz/mutations.h"

#include <algorithm>
#include <random>
#include <string_view>

namespace barvon::fuzz {
namespace {

constexpr std::string_view kNumbers[] = {"1E999",
                                         "-1E999",
                                         "1E-999",
                                         "99999999999999999999",
                                         "-32769",
                                         "40000",
                                         "65536",
                                         "2147483648",
                                         "1.7976931348623157E308",
                                         "5E-324",
                                         "0.1234567890123456789",
                                         "-0",
                                         "nan",
                                         "inf",
                                         "0x1F",
                                         "1,5",
                                         "1D3",
                                         "+",
                                         "-",
                                         ".",
                                         "E5",
                                         "1E99999999999",
                                         "1 2"};
constexpr std::string_view kLetters[] = {std::string_view("\0", 1),
                                         "\x1A",
                                         "\xEF\xBB\xBF",
                                         "\xFF\xFE",
                                         "\xC3\xBC",
                                         "\xE4\xB8\xAD",
                                         "\xF0\x9F\x98\x80",
                                         "\xC3",
                                         "\xED\xA0\x80",
                                         "\x81",
                                         "\xE2\x80\xA8",
                                         "\"",
                                         "\t",
                                         "[",
                                         ";",
                                         "=",
                                         "\r",
                                         "\x0C",
                                         "\xC0\x80"};

class Mutation {
 public:
  // One draw a statement: the order within an expression is the compiler's.
  Mutation(std::span<const std::string> samples, std::uint64_t seed)
      : samples_(samples), random_(seed), text_(samples[Any(samples.size())]) {}

  std::string Run() {
    for (std::size_t left = 1 + Any(6); left > 0; --left) Change();
    return std::move(text_);
  }

 private:
  /// From 0 to below the count. The engine's numbers are the same on every machine.
  std::size_t Any(std::size_t count) {
    return count == 0 ? 0 : static_cast<std::size_t>(random_() % count);
  }
  std::size_t Place() { return Any(text_.size() + 1); }
  char Byte() { return static_cast<char>(random_()); }

  /// A line without its end, as first and behind its last byte.
  struct Line {
    std::size_t first = 0, end = 0;
    std::size_t size() const { return end - first; }
  };
  Line Some_Line() {
    const std::size_t at = Place();
    const std::size_t before = at == 0 ? text_.npos : text_.find_last_of("\r\n", at - 1);
    const std::size_t first = before == text_.npos ? 0 : before + 1;
    return {first, std::min(text_.find_first_of("\r\n", first), text_.size())};
  }

  void Change() {
    switch (Any(16)) {
      case 0:
      case 1:
        Change_Byte();
        break;
      case 2:
        Erase();
        break;
      case 3:
        Cut();
        break;
      case 4:
        Double();
        break;
      case 5:
        Drop_Line();
        break;
      case 6:
        Double_Line();
        break;
      case 7:
        Swap_Lines();
        break;
      case 8:
        Swap_Columns();
        break;
      case 9:
      case 10:
        Replace_Number();
        break;
      case 11:
        Lengthen_Line();
        break;
      case 12:
        Insert(std::string(1 + Any(12), '\0'));
        break;
      case 13:
        Insert(kLetters[Any(std::size(kLetters))]);
        break;
      case 14:
        Encode();
        break;
      default:
        Take_From_Another();
    }
  }

  void Insert(std::string_view letters) { text_.insert(Place(), letters); }
  void Change_Byte() {
    if (text_.empty()) return;
    char& byte = text_[Any(text_.size())];
    byte = Any(2) == 0 ? Byte() : static_cast<char>(byte ^ 1 << Any(8));
  }
  void Erase() {
    const std::size_t at = Place();
    text_.erase(at, Any(40));
  }
  /// Mostly near the end, where a file that is cut may still pass for a whole one.
  void Cut() {
    const std::size_t size = text_.size();
    const bool anywhere = Any(2) == 0;
    text_.resize(anywhere ? Any(size + 1) : size - std::min(size, Any(200)));
  }
  void Double() {
    const std::size_t from = Place(), to = Place();
    text_.insert(to, text_.substr(from, Any(400)));
    if (Any(20) == 0) text_ += text_.substr(0, 300'000);
  }
  void Drop_Line() {
    const Line line = Some_Line();
    text_.erase(line.first, line.size() + (text_.substr(line.end, 2) == "\r\n" ? 2 : 1));
  }
  void Double_Line() {
    const Line line = Some_Line();
    text_.insert(line.first, text_.substr(line.first, line.size()) + "\r\n");
  }
  void Swap_Lines() {
    Line a = Some_Line(), b = Some_Line();
    if (a.first > b.first) std::swap(a, b);
    if (a.first == b.first) return;
    const std::string upper = text_.substr(a.first, a.size());
    const std::string lower = text_.substr(b.first, b.size());
    text_.replace(b.first, b.size(), upper);
    text_.replace(a.first, a.size(), lower);
  }
  void Swap_Columns() {
    const Line line = Some_Line();
    const std::size_t width = 1 + Any(15);
    if (line.size() < 2 * width) return;
    const std::size_t a = line.first + Any(line.size() - 2 * width + 1);
    const std::size_t b = a + width + Any(line.end - a - 2 * width + 1);
    std::swap_ranges(text_.begin() + static_cast<std::ptrdiff_t>(a),
                     text_.begin() + static_cast<std::ptrdiff_t>(a + width),
                     text_.begin() + static_cast<std::ptrdiff_t>(b));
  }
  void Replace_Number() {
    const std::size_t first = text_.find_first_of("0123456789", Place());
    if (first == text_.npos) return;
    const std::size_t end = std::min(text_.find_first_not_of("0123456789.", first), text_.size());
    const std::string_view number = kNumbers[Any(std::size(kNumbers))];
    // In its own columns, or moving what is behind it.
    const std::size_t room = Any(2) == 0 ? end - first : std::max(end - first, number.size());
    text_.replace(first, std::min(room, text_.size() - first), number);
  }
  void Lengthen_Line() {
    constexpr std::size_t kLengths[] = {100, 1'000, 10'000, 100'000};
    constexpr std::string_view kFill = "0 9\"a,\t-\n";
    const std::size_t length = kLengths[Any(Any(10) == 0 ? std::size(kLengths) : 2)];
    Insert(std::string(length, kFill[Any(kFill.size())]));
  }
  void Encode() {
    std::string other;
    const std::size_t way = Any(5);
    for (std::size_t at = 0; at < text_.size(); ++at) {
      const char c = text_[at];
      if (way == 0) {
        (other += c) += '\0';  // two bytes a letter
      } else if (c == '\r' && way != 3) {
        if (way == 1) other += '\r';  // a return alone ends a line
      } else if (c == '\n' && way <= 2) {
        if (way == 2) other += '\n';
      } else if (way == 4 && c == '\n') {
        other += "\n\n";
      } else {
        other += c;
      }
    }
    if (way == 3) other.insert(0, "\xEF\xBB\xBF");
    text_ = std::move(other);
  }
  void Take_From_Another() {
    const std::string& other = samples_[Any(samples_.size())];
    const std::size_t size = Any(2) == 0 ? Any(300) : other.size();
    const std::size_t from = Any(other.size() + 1);
    const std::size_t place = Place();
    text_.replace(place, Any(300), other.substr(from, size));
  }

  std::span<const std::string> samples_;
  std::mt19937_64 random_;
  std::string text_;
};

}  // namespace

std::string Mutated(std::span<const std::string> samples, std::uint64_t seed) {
  return Mutation(samples, seed).Run();
}

}  // namespace barvon::fuzz
