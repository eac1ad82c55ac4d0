#include "attacks/same_files.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "core/record_bytes.h"
#include "platform/files/lock_holder.h"
#include "recovery/recovery_copy.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

bool Is_Any(const Record_Field&) { return true; }

bool Is_Whole_Page(const std::string& bytes) {
  return bytes.starts_with("<!DOCTYPE html>") && bytes.ends_with("</html>\n");
}

bool Is_Whole_Pdf(const std::string& bytes) {
  if (!bytes.starts_with("%PDF-") || !bytes.ends_with("\n%%EOF\n")) return false;
  // Where the table of its parts begins is told at its end: nothing is missing in between.
  const std::size_t told = bytes.rfind("startxref\n");
  if (told == std::string::npos) return false;
  const long table = std::strtol(bytes.c_str() + told + std::strlen("startxref\n"), nullptr, 10);
  return bytes.compare(static_cast<std::size_t>(table), 4, "xref") == 0;
}

bool Is_Same_Copy(const std::string& seen, const std::string& wanted) {
  const std::optional<Recovery_Copy> here = Read_Copy(seen), there = Read_Copy(wanted);
  return here && there && here->project == there->project &&
         Record_Bytes(*here->record, Is_Any) == Record_Bytes(*there->record, Is_Any);
}

bool Is_Same_Lock(const std::string& seen, const std::string& wanted) {
  const std::optional<Lock_Holder> here = Read_Holder(seen), there = Read_Holder(wanted);
  return here && there && here->user == there->user;
}

}  // namespace

std::optional<std::string> Bytes_Of(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::string Common_Name(const std::string& name) {
  std::size_t end = 0;
  for (int i = 0; i < 2; ++i) {
    const std::size_t digits = name.find_first_not_of("0123456789", end);
    if (digits == end || digits == std::string::npos || name[digits] != '-') return name;
    end = digits + 1;
  }
  return name.substr(end);
}

std::string Find_File(const std::string& root, const std::string& name) {
  const fs::path path = fs::path(root) / name;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(path.parent_path(), none)) {
    if (Common_Name(entry.path().filename()) == path.filename()) return entry.path();
  }
  return path;
}

bool Is_Same(const std::string& name, const std::optional<std::string>& seen,
             const std::optional<std::string>& wanted) {
  if (seen == wanted || !seen || !wanted) return seen == wanted;
  // Two reports of a project differ in what is known of its file, and as PDF in their identity.
  if (name.ends_with(".html")) return Is_Whole_Page(*seen) && Is_Whole_Page(*wanted);
  if (name.ends_with(".pdf")) return Is_Whole_Pdf(*seen) && Is_Whole_Pdf(*wanted);
  if (name.ends_with(".barvon-copy")) return Is_Same_Copy(*seen, *wanted);
  return name.ends_with(".barvon-lock") && Is_Same_Lock(*seen, *wanted);
}

}  // namespace barvon::testing
