#include "batch/batch_fixture.h"

#include <sys/stat.h>

#include <filesystem>
#include <memory>

#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "sample_projects.h"

namespace barvon::testing {

BatchProgram::BatchProgram() { std::filesystem::create_directory(folder_ / "tmp"); }

Program_Start BatchProgram::Start_Of(const std::vector<std::string>& arguments) const {
  Program_Start start;
  start.command = {BARVON_RUN_PROGRAM};
  start.command.insert(start.command.end(), arguments.begin(), arguments.end());
  start.folder = folder_.path();
  start.environment = {"TMPDIR=" + (folder_ / "tmp")};
  return start;
}

Program_Result BatchProgram::Batch(const std::vector<std::string>& arguments) {
  return Run_Program(Start_Of(arguments));
}

void BatchProgram::Put_Sample(const std::string& sample, const std::string& name) {
  std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
  std::filesystem::copy_file(std::string(BARVON_SAMPLES) + "/" + sample, Path(name));
}

std::string BatchProgram::Put_Solver(const std::string& script) {
  const std::string folder = folder_ / "solvers";
  std::filesystem::create_directory(folder);
  Write_Text(folder + "/merak32", "#!/bin/sh\n" + script);
  chmod((folder + "/merak32").c_str(), 0755);
  return folder;
}

void BatchProgram::Put_Remarkable(const std::string& name) {
  const auto record = std::make_unique<ProjectRecord>();
  samples::Fill_Sample(samples::Samples()[0], *record);
  record->TotalVolume = 4000;
  record->NOPENS = 3;
  Pack_Slots(*record);
  Write_Text(Path(name), Save_Project(name, *record));
}

void BatchProgram::Put_Faulty(const std::string& name) {
  const auto record = std::make_unique<ProjectRecord>();
  samples::Fill_Sample(samples::Samples()[0], *record);
  record->RHDA0 = 0;
  Pack_Slots(*record);
  Write_Text(Path(name), Save_Project(name, *record));
}

}  // namespace barvon::testing
