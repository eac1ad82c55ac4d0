#include "layout/include_graph.h"

#include <filesystem>
#include <functional>
#include <regex>
#include <sstream>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

const std::regex kOwnInclude(R"re(^\s*#\s*include\s*"([^"]+)")re");
const std::regex kToolkitInclude(R"(^\s*#\s*include\s*<(Q|qt|qcustomplot))");

bool Has_Line(const std::string& text, const std::regex& pattern) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_search(line, pattern)) return true;
  }
  return false;
}

}  // namespace

Include_Graph Read_Includes(const std::string& source_folder) {
  Include_Graph graph;
  for (const auto& entry : fs::recursive_directory_iterator(source_folder)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    auto& includes = graph[fs::relative(entry.path(), source_folder).generic_string()];
    std::istringstream lines(Read_Text(entry.path().string()));
    for (std::string line; std::getline(lines, line);) {
      std::smatch found;
      if (std::regex_search(line, found, kOwnInclude)) includes.insert(found[1]);
    }
  }
  return graph;
}

std::set<std::string> Toolkit_Files(const std::string& source_folder, const Include_Graph& graph) {
  std::set<std::string> toolkit;
  for (const auto& [file, includes] : graph) {
    if (Has_Line(Read_Text(source_folder + "/" + file), kToolkitInclude)) toolkit.insert(file);
  }
  for (bool grown = true; grown;) {
    grown = false;
    for (const auto& [file, includes] : graph) {
      for (const std::string& included : includes) {
        if (toolkit.contains(included) && toolkit.insert(file).second) grown = true;
      }
    }
  }
  return toolkit;
}

std::vector<std::string> Find_Ring(const Include_Graph& graph) {
  std::set<std::string> done;
  std::vector<std::string> path;
  std::vector<std::string> ring;
  const std::function<bool(const std::string&)> visit = [&](const std::string& file) {
    for (auto at = path.begin(); at != path.end(); ++at) {
      if (*at != file) continue;
      ring.assign(at, path.end());
      return true;
    }
    const auto node = graph.find(file);
    if (node == graph.end() || done.contains(file)) return false;
    path.push_back(file);
    for (const std::string& included : node->second) {
      if (visit(included)) return true;
    }
    path.pop_back();
    done.insert(file);
    return false;
  };
  for (const auto& [file, includes] : graph) {
    if (visit(file)) break;
  }
  return ring;
}

std::string Room_Of(const std::string& file) {
  const auto slash = file.rfind('/');
  return slash == std::string::npos ? file : file.substr(0, slash);
}

std::string Unit_Of(const std::string& file) { return file.substr(0, file.rfind('.')); }

Include_Graph Units_Of(const Include_Graph& files) {
  Include_Graph units;
  for (const auto& [file, includes] : files) {
    auto& of_unit = units[Unit_Of(file)];
    for (const std::string& included : includes) {
      if (Unit_Of(included) != Unit_Of(file)) of_unit.insert(Unit_Of(included));
    }
  }
  return units;
}

}  // namespace barvon::testing
