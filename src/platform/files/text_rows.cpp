#include "platform/files/text_rows.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr std::size_t kCountedColumns = 1 << 20;
constexpr std::string_view kMark = "\xEF\xBB\xBF";  // U+FEFF

bool Goes_On(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Looks for a text as R. N. Horspool does, "Practical Fast Searching in Strings", Software:
/// Practice and Experience 10 (1980).
class Searcher {
 public:
  Searcher(std::string_view bytes, std::string_view text) : bytes_(bytes), text_(text) {
    std::ranges::transform(text_, text_.begin(), Lower);
  }

  std::optional<std::size_t> Forward(std::size_t from) const {
    const std::size_t length = text_.size();
    std::array<std::size_t, 256> skip;
    skip.fill(length);
    for (std::size_t i = 0; i + 1 < length; ++i) skip[Index(text_[i])] = length - 1 - i;
    for (std::size_t at = from; at + length <= bytes_.size();) {
      if (Is_At(at)) return at;
      at += skip[Index(Lower(bytes_[at + length - 1]))];
    }
    return std::nullopt;
  }

  std::optional<std::size_t> Backward(std::size_t before) const {
    const std::size_t length = text_.size();
    if (length > bytes_.size() || before == 0) return std::nullopt;
    std::array<std::size_t, 256> skip;
    skip.fill(length);
    for (std::size_t i = length; i-- > 1;) skip[Index(text_[i])] = i;
    for (std::size_t at = std::min(before - 1, bytes_.size() - length);;) {
      if (Is_At(at)) return at;
      const std::size_t step = skip[Index(Lower(bytes_[at]))];
      if (step > at) return std::nullopt;
      at -= step;
    }
  }

 private:
  static std::size_t Index(char c) { return static_cast<unsigned char>(c); }
  bool Is_At(std::size_t at) const {
    return std::equal(text_.begin(), text_.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at),
                      [](char wanted, char c) { return wanted == Lower(c); });
  }

  std::string_view bytes_;
  std::string text_;
};

}  // namespace

void Text_Rows::Add(std::string_view bytes) {
  bytes_ += bytes;
  if (taken_ == 0 && bytes_.size() >= kMark.size() && bytes_.starts_with(kMark)) {
    taken_ = kMark.size();
  }
  while (taken_ < bytes_.size()) {
    const Row row = Row_From(taken_);
    if (!Is_Certain(row)) break;
    Take(row);
  }
}

void Text_Rows::Finish() {
  bool open = true;  // a line end is followed by one more row
  while (taken_ < bytes_.size()) {
    const Row row = Row_From(taken_);
    open = row.next < bytes_.size() || row.next > row.end;
    Take(row);
  }
  if (open) Take({bytes_.size(), bytes_.size(), bytes_.size(), true});
}

/// A row at the end of what has come may be longer once more has come.
bool Text_Rows::Is_Certain(const Row& row) const {
  return row.next < bytes_.size() || (row.next > row.end && bytes_[row.next - 1] == '\n');
}

void Text_Rows::Take(const Row& row) {
  if (rows_ == 0) line_start_ = row.start;
  if (rows_ % kNoteEvery == 0) notes_.push_back({row.start, lines_, line_start_});
  ++rows_;
  if (row.ends_line) {
    ++lines_;
    line_start_ = row.next;
  }
  longest_ = std::max(longest_, row.end - row.start);
  taken_ = row.next;
}

Text_Rows::Row Text_Rows::Row_From(std::size_t start) const {
  const char* begin = bytes_.data() + start;
  const std::size_t room = std::min(bytes_.size() - start, kLongestRow + 1);
  const auto* feed = static_cast<const char*>(std::memchr(begin, '\n', room));
  std::size_t length = feed == nullptr ? room : static_cast<std::size_t>(feed - begin);
  const auto* back = static_cast<const char*>(std::memchr(begin, '\r', length));
  if (back != nullptr) {
    length = static_cast<std::size_t>(back - begin);
    const bool both = start + length + 1 < bytes_.size() && back[1] == '\n';
    return {start, start + length, start + length + (both ? 2 : 1), true};
  }
  if (feed != nullptr) return {start, start + length, start + length + 1, true};
  if (length <= kLongestRow) return {start, start + length, start + length, true};
  length = kLongestRow;
  // A character is not cut; what has no beginning within its length is no UTF-8.
  for (std::size_t back_by = 0; back_by < 3 && Goes_On(begin[length]); ++back_by) --length;
  if (Goes_On(begin[length])) length = kLongestRow;
  return {start, start + length, start + length, false};
}

Text_Rows::Row Text_Rows::Row_Of(std::size_t index) const {
  Row row = Row_From(notes_[index / kNoteEvery].start);
  for (std::size_t i = index % kNoteEvery; i > 0; --i) row = Row_From(row.next);
  return row;
}

std::size_t Text_Rows::Row_At(std::size_t place) const {
  const auto behind = std::ranges::upper_bound(notes_, place, {}, &Note::start);
  if (behind == notes_.begin()) return 0;
  std::size_t index = (static_cast<std::size_t>(behind - notes_.begin()) - 1) * kNoteEvery;
  for (Row row = Row_Of(index); index + 1 < rows_ && row.next <= place; ++index) {
    row = Row_From(row.next);
  }
  return index;
}

std::string_view Text_Rows::Bytes(std::size_t from, std::size_t to) const {
  return std::string_view(bytes_).substr(from, to - from);
}

Text_Rows::Line_And_Column Text_Rows::Where(std::size_t place) const {
  if (rows_ == 0) return {};
  const std::size_t index = Row_At(place);
  const Note& note = notes_[index / kNoteEvery];
  std::size_t line = note.line;
  std::size_t start = note.line_start;
  Row row = Row_From(note.start);
  for (std::size_t i = index % kNoteEvery; i > 0; --i) {
    if (row.ends_line) {
      ++line;
      start = row.next;
    }
    row = Row_From(row.next);
  }
  const std::string_view before = Bytes(start, std::clamp(place, start, std::max(start, row.end)));
  // In a line without end the bytes have to do for the characters.
  const bool counted = before.size() <= kCountedColumns && Is_UTF8(before);
  const auto characters = counted
                              ? std::ranges::count_if(before, [](char c) { return !Goes_On(c); })
                              : std::ssize(before);
  return {line + 1, static_cast<std::size_t>(characters) + 1};
}

std::size_t Text_Rows::Before(std::size_t place) const {
  if (rows_ == 0) return 0;
  const std::size_t index = Row_At(place);
  Row row = Row_Of(index);
  if (place <= row.start) {
    if (index == 0) return row.start;
    row = Row_Of(index - 1);
    if (row.next > row.end) return row.end;
    place = row.end;
  }
  std::size_t at = std::min(place, row.end + 1) - 1;
  if (at < row.end && Is_UTF8(Bytes(row))) {
    while (at > row.start && Goes_On(bytes_[at])) --at;
  }
  return at;
}

std::size_t Text_Rows::Behind(std::size_t place) const {
  if (rows_ == 0) return 0;
  const std::size_t index = Row_At(place);
  const Row row = Row_Of(index);
  if (place >= row.end) return index + 1 < rows_ ? row.next : row.end;
  std::size_t at = place + 1;
  if (Is_UTF8(Bytes(row))) {
    while (at < row.end && Goes_On(bytes_[at])) ++at;
  }
  return at;
}

std::optional<std::size_t> Text_Rows::Find(std::string_view text, std::size_t from,
                                           bool backward) const {
  if (text.empty()) return std::nullopt;
  const auto search = [&](std::string_view wanted) {
    const Searcher searcher(bytes_, wanted);
    return backward ? searcher.Backward(from) : searcher.Forward(from);
  };
  const std::optional<std::size_t> found = search(text);
  // The same letters in the other encoding.
  if (Is_ASCII(text) || !Fits_File_Encoding(text)) return found;
  const std::optional<std::size_t> other = search(To_File_Bytes(text));
  if (!found || !other) return found ? found : other;
  return backward ? std::max(*found, *other) : std::min(*found, *other);
}

std::string Row_Text(std::string_view bytes) { return From_Settings_Bytes(bytes); }

}  // namespace barvon
