// make_help_project TEMPLATE OUTPUT FILE...: puts the index, gathered from the pages among the
// files, and the list of the files in place of "@INDEX_AND_FILES@" in the template.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "help_index.h"

namespace {

bool Read(const std::string& path, std::string& text) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  text = bytes.str();
  return file.good();
}

int Fail(const std::string& message) {
  std::cerr << "make_help_project: " << message << "\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() < 3) return Fail("template, output and files are wanted");
  std::string project;
  if (!Read(arguments[0], project)) return Fail("can't read " + arguments[0]);

  std::vector<barvon::Help_Keyword> keywords;
  std::string files = "    <files>\n";
  std::vector<std::string> paths(arguments.begin() + 2, arguments.end());
  std::sort(paths.begin(), paths.end());
  for (const std::string& path : paths) {
    const std::string name = std::filesystem::path(path).filename().string();
    files += "      <file>" + barvon::Escaped_For_Xml(name) + "</file>\n";
    if (!name.ends_with(".html")) continue;
    std::string text;
    if (!Read(path, text)) return Fail("can't read " + path);
    const auto of_page = barvon::Keywords_Of_Page(name, text);
    if (of_page.empty()) return Fail(name + " gives the index nothing: it has no <h1>");
    keywords.insert(keywords.end(), of_page.begin(), of_page.end());
  }
  files += "    </files>\n";

  const std::string kPlace = "@INDEX_AND_FILES@\n";
  const auto place = project.find(kPlace);
  if (place == std::string::npos) return Fail(arguments[0] + " has no line " + kPlace);
  project.replace(place, kPlace.size(), barvon::Keywords_Section(keywords) + files);
  std::ofstream output(arguments[1], std::ios::binary);
  output << project;
  output.close();
  return output ? 0 : Fail("can't write " + arguments[1]);
}
