#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace barvon {

// Numbers and texts one behind the other in a file of this system: a number is its eight bytes, a
// text its length in four and then its bytes.

inline void Append_Number(std::string& bytes, double value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

inline void Append_Text(std::string& bytes, std::string_view text) {
  const auto length = static_cast<std::uint32_t>(text.size());
  bytes.append(reinterpret_cast<const char*>(&length), sizeof length).append(text);
}

/// Reads them back; nothing where the bytes end too early.
class Byte_Reader {
 public:
  explicit Byte_Reader(std::string_view bytes) : bytes_(bytes) {}

  bool Is_At_End() const { return bytes_.empty(); }

  std::optional<double> Number() { return Take<double>(); }

  std::optional<std::string> Text() {
    const std::optional<std::uint32_t> length = Take<std::uint32_t>();
    if (!length || *length > bytes_.size()) return std::nullopt;
    std::string text(bytes_.substr(0, *length));
    bytes_.remove_prefix(*length);
    return text;
  }

 private:
  template <class T>
  std::optional<T> Take() {
    if (bytes_.size() < sizeof(T)) return std::nullopt;
    T value{};
    std::memcpy(&value, bytes_.data(), sizeof value);
    bytes_.remove_prefix(sizeof value);
    return value;
  }

  std::string_view bytes_;
};

}  // namespace barvon
