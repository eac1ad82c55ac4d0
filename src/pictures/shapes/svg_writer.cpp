#include "pictures/shapes/svg_writer.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>

namespace barvon {
namespace {

// Two decimals are finer than any screen; trailing zeros go, and so does the sign of a zero.
std::string Number(double value) {
  std::array<char, 64> buffer;  // enough: Has_Places bounds what comes here
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::fixed, 2);
  std::string text(buffer.data(), end.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}

std::string Name_Of(Colour colour) {
  std::array<char, 8> text;
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x", colour.red, colour.green, colour.blue);
  return text.data();
}

std::string Ink(const std::optional<Colour>& fill, const std::optional<Stroke>& stroke) {
  std::string text = Attribute("fill", fill ? Name_Of(*fill) : "none");
  if (!stroke) return text;
  text += Attribute("stroke", Name_Of(stroke->colour));
  text += Attribute("stroke-width", Number(stroke->width));
  if (stroke->dash == Dash::dashed) text += Attribute("stroke-dasharray", "6 4");
  if (stroke->dash == Dash::dotted) text += Attribute("stroke-dasharray", "1 3");
  return text;
}

std::string Points(const std::vector<Place>& places) {
  std::string text;
  for (const Place& place : places) {
    if (!text.empty()) text += ' ';
    text += Number(place.x) + "," + Number(place.y);
  }
  return Attribute("points", text);
}

std::string Element(const Line_Shape& line) {
  return "<polyline" + Points(line.points) + Ink({}, line.stroke) + "/>";
}

std::string Element(const Polygon_Shape& polygon) {
  return "<polygon" + Points(polygon.points) + Ink(polygon.fill, polygon.stroke) + "/>";
}

std::string Element(const Area_Shape& area) {
  std::string path;
  for (const auto& ring : area.rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      path += (i == 0 ? "M" : " ") + Number(ring[i].x) + "," + Number(ring[i].y);
    }
    path += "Z";
  }
  return "<path" + Attribute("d", path) + Attribute("fill-rule", "evenodd") +
         Ink(area.fill, area.stroke) + "/>";
}

std::string Element(const Circle_Shape& circle) {
  return "<circle" + Attribute("cx", Number(circle.centre.x)) +
         Attribute("cy", Number(circle.centre.y)) + Attribute("r", Number(circle.radius)) +
         Ink(circle.fill, circle.stroke) + "/>";
}

std::string Element(const Text_Shape& text) {
  const std::string x = Number(text.place.x), y = Number(text.place.y);
  std::string element = "<text" + Attribute("x", x) + Attribute("y", y) +
                        Attribute("font-size", Number(text.size)) +
                        Attribute("fill", Name_Of(text.colour));
  if (text.anchor == Anchor::middle) element += Attribute("text-anchor", "middle");
  if (text.anchor == Anchor::end) element += Attribute("text-anchor", "end");
  if (text.bold) element += Attribute("font-weight", "bold");
  if (text.upwards) element += Attribute("transform", "rotate(-90 " + x + " " + y + ")");
  return element + ">" + Svg_Escaped(text.text) + "</text>";
}

// Bytes of the character that begins at `at`; 0 when there is none, told by its form alone.
std::size_t Length_Of_Character(const std::string& text, std::size_t at) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0};
  };
  const std::uint8_t first = byte(at), second = byte(at + 1);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xC2 ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) return 0;
  }
  // Longer forms of shorter characters, halves of pairs, and what is beyond the last character.
  const bool odd = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                   (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
  return odd ? 0 : length;
}

}  // namespace

std::string Svg_Escaped(const std::string& text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = Length_Of_Character(text, at);
    const char byte = text[at];
    const std::string character = text.substr(at, length);
    at += length > 0 ? length : 1;
    if (length == 0) {
      escaped += '?';
    } else if (byte == '&') {
      escaped += "&amp;";
    } else if (byte == '<') {
      escaped += "&lt;";
    } else if (byte == '>') {
      escaped += "&gt;";
    } else if (byte == '"') {
      escaped += "&quot;";
    } else if (character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") {
      continue;  // no characters of such a file
    } else if (length > 1 || static_cast<std::uint8_t>(byte) >= 0x20 || byte == '\n' ||
               byte == '\t') {
      escaped += character;
    }
  }
  return escaped;
}

std::string Svg_Text(const Shape_List& picture) {
  const std::string width = Number(picture.width), height = Number(picture.height);
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  text += "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"" + Attribute("width", width) +
          Attribute("height", height) + Attribute("viewBox", "0 0 " + width + " " + height) +
          " role=\"img\" font-family=\"sans-serif\">\n";
  text += "<title>" + Svg_Escaped(picture.title) + "</title>\n";
  text += "<desc>" + Svg_Escaped(picture.description) + "</desc>\n";
  text +=
      "<rect" + Attribute("width", width) + Attribute("height", height) + " fill=\"#ffffff\"/>\n";
  for (const Shape& shape : picture.shapes) {
    if (!Has_Places(shape)) continue;
    text += std::visit([](const auto& known) { return Element(known); }, shape) + "\n";
  }
  return text + "</svg>\n";
}

}  // namespace barvon
