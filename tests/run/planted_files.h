#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

#include "run/run_driver_fixture.h"

namespace barvon::testing {

inline constexpr uid_t kStranger = 54321;
inline constexpr mode_t kOpenToAll = 0777, kSticky = 01777;

enum class Plant { Link, Second_Name, Dangling_Link, Pipe, Folder };
inline constexpr std::array kPlants = {Plant::Link, Plant::Second_Name, Plant::Dangling_Link,
                                       Plant::Pipe, Plant::Folder};

/// A file that nobody may change, and things planted that lead to it.
struct PlantedFiles : RunDriver {
  PlantedFiles() {
    Write_Text(victim, "precious");
    Install(kWritesAll + std::string("print:text\n"));
  }
  void Put(Plant plant, const std::string& path) {
    std::filesystem::remove_all(path);
    switch (plant) {
      case Plant::Link:
        return std::filesystem::create_symlink(victim, path);
      case Plant::Second_Name:
        return std::filesystem::create_hard_link(victim, path);
      case Plant::Dangling_Link:
        return std::filesystem::create_symlink(made, path);
      case Plant::Pipe:
        ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
        return;
      case Plant::Folder:
        std::filesystem::create_directory(path);
        Write_Text(path + "/inside", "precious");
    }
  }
  void Expect_No_Harm(Plant plant, const std::string& path) {
    EXPECT_EQ(Read_Text(victim), "precious") << path;
    EXPECT_FALSE(Exists(made)) << path;
    if (plant == Plant::Folder) {
      EXPECT_EQ(Read_Text(path + "/inside"), "precious");
    }
  }
  const std::string victim = bench.folder / "victim", made = bench.folder / "made";
};

/// What only somebody else can plant; to act as one takes root.
struct StrangersFiles : PlantedFiles {
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "takes root: files are given to another user";
  }
  static void Give_Away(const std::string& path) {
    ASSERT_EQ(::lchown(path.c_str(), kStranger, kStranger), 0);
  }
  static void Open_To_All(const std::string& folder, mode_t mode) {
    ASSERT_EQ(::chmod(folder.c_str(), mode), 0);
  }
};

}  // namespace barvon::testing
