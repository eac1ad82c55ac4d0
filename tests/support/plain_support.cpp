#include "support/plain_support.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace barvon::testing {

namespace fs = std::filesystem;

Scratch_Folder::Scratch_Folder() : former_current_(fs::current_path().string()) {
  std::string name = (fs::temp_directory_path() / "barvon-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no scratch folder: " + name);
  path_ = fs::canonical(name).string();
}

Scratch_Folder::~Scratch_Folder() {
  std::error_code error;
  fs::current_path(former_current_, error);
  fs::remove_all(path_, error);
}

Scripted_Messages::Scripted_Messages(std::vector<Answer> answers) : answers_(std::move(answers)) {
  former_ = Set_Message_Presenter([this](const Message& message) {
    shown.push_back(message);
    if (shown.size() > answers_.size()) {
      ADD_FAILURE() << "unexpected box: " << message.text;
      return Answer_On_Close(message);
    }
    return answers_[shown.size() - 1];
  });
}

Scripted_Messages::~Scripted_Messages() { Set_Message_Presenter(std::move(former_)); }

std::string Read_Text(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Write_Text(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("can't write " + path);
}

bool Exists(const std::string& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(path, error));
}

std::vector<std::string> Names_In(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace barvon::testing
