// Writes the sample projects into a folder: make_samples FOLDER. Nobody edits the files in samples/
// by hand; after a change of sample_projects.cpp they are made anew.

#include <cstdio>
#include <cstring>
#include <memory>

#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "sample_projects.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_samples FOLDER\n");
    return 2;
  }
  for (const auto& sample : barvon::samples::Samples()) {
    const auto record = std::make_unique<barvon::ProjectRecord>();
    barvon::samples::Fill_Sample(sample, *record);
    barvon::Pack_Slots(*record);
    const std::string path = barvon::Join_Path(argv[1], sample.file);
    const int error = barvon::Write_Whole_File(path, barvon::Save_Project(sample.file, *record));
    if (error != 0) {
      std::fprintf(stderr, "%s: %s\n", path.c_str(), std::strerror(error));
      return 2;
    }
  }
  return 0;
}
