#include "platform/table/delimited_text.h"

#include <cstddef>
#include <optional>

namespace barvon {
namespace {

class Delimited_Reader {
 public:
  Delimited_Reader(std::string_view text, char separator, Quote_Rule quotes)
      : text_(text), separator_(separator), quotes_(quotes) {}

  Text_Block Read() {
    Text_Block rows(1);
    while (true) {
      rows.back().push_back(Read_Cell());
      if (At_End()) return rows;
      const char ended = text_[at_++];
      if (ended == separator_) continue;
      if (ended == '\r' && Next_Is('\n')) ++at_;
      if (At_End()) return rows;
      rows.emplace_back();
    }
  }

 private:
  bool At_End() const { return at_ >= text_.size(); }
  bool Next_Is(char character) const { return !At_End() && text_[at_] == character; }
  bool Ends_A_Cell(char character) const {
    return character == separator_ || character == '\r' || character == '\n';
  }

  std::string Read_Cell() {
    const std::size_t start = at_;
    if (quotes_ == Quote_Rule::Whole_Cell) {
      while (Next_Is(' ')) ++at_;
      if (Next_Is('"')) return Read_Whole_Cell();
    } else if (Next_Is('"')) {
      if (auto cell = Read_One_Line()) return *cell;
    }
    at_ = start;
    return Read_Plain();
  }

  /// Up to the end of the cell.
  std::string Read_Plain() {
    const std::size_t start = at_;
    while (!At_End() && !Ends_A_Cell(text_[at_])) ++at_;
    return std::string(text_.substr(start, at_ - start));
  }

  /// Nothing when no closing quote has the end of a cell behind it.
  std::optional<std::string> Read_One_Line() {
    std::string cell;
    for (++at_; !At_End(); ++at_) {
      if (text_[at_] == '"') {
        ++at_;
        if (At_End() || Ends_A_Cell(text_[at_])) return cell;
        if (text_[at_] != '"') return std::nullopt;
      }
      const char character = text_[at_];
      cell += Ends_A_Cell(character) ? ' ' : character;
      if (character == '\r' && text_.substr(at_ + 1).starts_with('\n')) ++at_;
    }
    return std::nullopt;
  }

  std::string Read_Whole_Cell() {
    std::string cell;
    for (++at_; !At_End(); ++at_) {
      if (text_[at_] == '"') {
        ++at_;
        if (!Next_Is('"')) return cell + Marked(Read_Plain());
      }
      cell += text_[at_];
    }
    return '"' + cell;
  }

  static std::string Marked(const std::string& behind) {
    std::string marked;
    for (const char character : behind) {
      if (character != ' ') marked += '"';
      marked += character;
    }
    return marked;
  }

  std::string_view text_;
  char separator_;
  Quote_Rule quotes_;
  std::size_t at_ = 0;
};

}  // namespace

Text_Block Read_Delimited_Text(std::string_view text, char separator, Quote_Rule quotes) {
  return Delimited_Reader(text, separator, quotes).Read();
}

}  // namespace barvon
