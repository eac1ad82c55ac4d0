#include "support/hostile_names.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <set>

#include "batch/batch_fixture.h"
#include "platform/files/text_encoding.h"
#include "support/proof_scale.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kAtOnce = 50;  // names in one call

TEST(HostileNameKinds, Are_All_Among_The_Few) {
  const std::vector<std::string> names = Hostile_Names(1, kFewNames);
  const auto has = [&names](const auto& kind) { return std::ranges::any_of(names, kind); };
  for (const char* part : {";", "$", "`", "\n", "'", "\"", "&", "|", "%", "*", "\xC3\xA9"}) {
    EXPECT_TRUE(has([&](const std::string& name) { return name.find(part) != name.npos; })) << part;
  }
  for (const char first : {'-', ' '}) {
    EXPECT_TRUE(has([&](const std::string& name) { return name.front() == first; })) << first;
  }
  EXPECT_TRUE(has([](const std::string& name) { return !Is_UTF8(name); }));
}

/// barvon-run in a folder full of such names, with programs planted where it is started.
class BatchHostileNames : public BatchProgram {
 protected:
  BatchHostileNames() {
    fs::create_directory(folder_ / "here");
    fs::create_directory(folder_ / "solvers");
    fs::copy_file(BARVON_TEST_CHILD, folder_ / "solvers/merak32");
    Write_Text(folder_ / "solvers/test_child.steps",
               "write:tmpfile.duo=x\nwrite:tmpfile.dup=x\nwrite:tmpfile.dut=x\n"
               "write:tmpfile.duc=x\n");
    for (const char* name : {"dos4gw", "DOS4GW", "dosbox", "merak32", "sh", "barvon", "barvon-run",
                             "touch", "dbus-launch"}) {
      const std::string plant = folder_ / ("here/" + std::string(name));
      Write_Text(plant, "#!/bin/sh\n: > '" + (folder_ / "started") + "'\n");
      chmod(plant.c_str(), 0755);
      plants_.insert(name);
    }
  }

  Program_Result Do(std::vector<std::string> arguments, const std::vector<std::string>& files) {
    arguments.emplace_back("--");
    arguments.insert(arguments.end(), files.begin(), files.end());
    Program_Start start = Start_Of(arguments);
    start.folder = folder_ / "here";
    start.environment.emplace_back("PATH=.::here:/usr/bin:/bin");
    return Run_Program(start);
  }
  void Expect_Only(const std::vector<std::string>& names, const std::vector<std::string>& endings) {
    std::set<std::string> wanted = plants_;
    for (const std::string& name : names) {
      for (const std::string& ending : endings) wanted.insert(name + ending);
    }
    const std::vector<std::string> there = Names_In(folder_ / "here");
    EXPECT_EQ(std::set<std::string>(there.begin(), there.end()), wanted);
    EXPECT_FALSE(Exists(folder_ / "started"));
    EXPECT_TRUE(Left_Behind().empty());
  }
  /// All there is to be done, for these names at once.
  void Do_All(const std::vector<std::string>& names) {
    std::vector<std::string> files;
    for (const std::string& name : names) {
      files.push_back(name + ".DUI");
      Write_Text(folder_ / ("here/" + files.back()), sample_);
    }
    std::vector<std::string> endings = {".DUI"};
    const auto done = [&](const std::vector<std::string>& arguments,
                          const std::vector<std::string>& made) {
      const Program_Result result = Do(arguments, files);
      EXPECT_EQ(result.code, 0) << arguments[0] << ": " << result.err;
      endings.insert(endings.end(), made.begin(), made.end());
      Expect_Only(names, endings);
      return result;
    };
    done({"check"}, {});
    // A name with a line break does not make a second line.
    EXPECT_EQ(Printed_Lines(done({"export"}, {".DUE"}).out).size(), files.size());
    EXPECT_EQ(Printed_Lines(done({"report"}, {".html"}).out).size(), files.size());
    const std::string solvers = folder_ / "solvers";
    const auto ran = done({"run", "--solver-dir", solvers}, {".duo", ".dup", ".dut", ".duc"});
    EXPECT_EQ(Printed_Lines(ran.out).size(), 5 * files.size());
    for (const std::string& file : files) {
      EXPECT_EQ(Read_Text(folder_ / ("here/" + file)), sample_);
      for (const std::string& ending : endings) {
        fs::remove(folder_ / ("here/" + file.substr(0, file.size() - 4) + ending));
      }
    }
  }

  const std::string sample_ = Read_Text(std::string(BARVON_SAMPLES) + "/" + kHopper);

 private:
  std::set<std::string> plants_;
};

TEST_F(BatchHostileNames, Are_Names_Of_Files_And_Nothing_Else) {
  const auto seed = static_cast<unsigned>(Proof_Scale("BARVON_PROOF_SEED", 1));
  // ".html" is a letter longer than what the names leave room for.
  std::vector<std::string> names = Hostile_Names(seed, Proof_Scale("BARVON_PROOF_NAMES", 40));
  for (std::string& name : names) name.resize(std::min(name.size(), std::size_t{250}));
  for (std::size_t at = 0; at < names.size() && !HasFailure(); at += kAtOnce) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", names from " + std::to_string(at));
    const auto first = names.begin() + static_cast<std::ptrdiff_t>(at);
    const auto count = std::min(kAtOnce, names.size() - at);
    Do_All({first, first + static_cast<std::ptrdiff_t>(count)});
  }
  ASSERT_FALSE(HasFailure());
  std::cout << names.size() << " names through check, export, report and run\n";
}

}  // namespace
}  // namespace barvon::testing
