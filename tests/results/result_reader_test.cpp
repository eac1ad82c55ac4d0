#include "results/result_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "platform/files/check_sum.h"
#include "results/phase_reader.h"
#include "results/small_outputs.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

using Problem = std::optional<Result_Problem>;

/// "line 3: why", or "" where the output is sound.
std::string Said(const Problem& problem) {
  return problem ? "line " + std::to_string(problem->line) + ": " + problem->reason : "";
}

std::string Of_Series(const std::string& bytes) {
  Results results;
  return Said(Read_Series("a.dut", bytes, results));
}

std::string Of_Maps(const std::string& bytes) {
  Results results;
  EXPECT_EQ(Said(Read_Series("a.dut", kSmallSeries, results)), "");
  return Said(Read_Maps("a.duc", bytes, results));
}

std::string Of_Phases(const std::string& bytes) {
  Results results;
  EXPECT_EQ(Said(Read_Series("a.dut", kSmallSeries, results)), "");
  return Said(Check_Phases("a.dup", bytes, results));
}

std::string Series_With(const std::string& part, const std::string& instead) {
  return Of_Series(With(kSmallSeries, part, instead));
}

std::string Maps_With(const std::string& part, const std::string& instead) {
  return Of_Maps(With(kSmallMaps, part, instead));
}

TEST(ResultReader, Every_Column_Of_The_Series_Has_Its_Place) {
  Results results;
  ASSERT_EQ(Said(Read_Series("a.dut", kSmallSeries, results)), "");
  EXPECT_EQ(results.solver, "COMPANION SOLVER 1.0");
  EXPECT_EQ(results.label + "\r\n", kSmallLabel);
  EXPECT_EQ(results.title, "M\xC3\xB6wenbank");
  EXPECT_EQ(results.input_sum, 0x0123456789abcdefU);
  ASSERT_EQ(results.species.size(), 2u);
  EXPECT_EQ(results.species[0].name, "Sand");
  EXPECT_EQ(results.species[0].unit, "mg/l");
  EXPECT_EQ(results.species[1].name, "Copper");
  EXPECT_EQ(results.species[1].unit, "%");

  ASSERT_EQ(results.maxima.size(), 4u);
  const Result_Maxima& maxima = results.maxima[1];
  EXPECT_EQ(maxima.time, 600);
  EXPECT_EQ(maxima.species, 2);
  EXPECT_EQ(maxima.depth, 5);
  EXPECT_EQ(maxima.inside, 4);
  EXPECT_EQ(maxima.outside, 2.25);
  EXPECT_EQ(maxima.outside_zid, 1);

  ASSERT_EQ(results.peaks.size(), 4u);
  const Result_Peak& peak = results.peaks[2];
  EXPECT_EQ(peak.time, 1200);
  EXPECT_EQ(peak.species, 1);
  EXPECT_EQ(peak.value, 10);
  EXPECT_EQ(peak.x, 130);
  EXPECT_EQ(peak.z, 75);
  EXPECT_EQ(peak.depth, 3);

  ASSERT_EQ(results.masses.size(), 4u);
  const Result_Mass& mass = results.masses[0];
  EXPECT_EQ(mass.time, 600);
  EXPECT_EQ(mass.species, 1);
  EXPECT_EQ(mass.suspended, 60);
  EXPECT_EQ(mass.on_grid, 30);
  EXPECT_EQ(mass.off_grid, 10);
  EXPECT_EQ(mass.released, 100);
}

// The small output with a line of the sum of what is behind it, as the solver seals it.
std::string Sealed_Series() {
  std::string bytes = kSmallSeries;
  const std::string input = "INPU  0123456789abcdef\r\n";
  const std::size_t behind = bytes.find(input) + input.size();
  std::ostringstream line;
  line << "BODY  " << std::hex << std::setw(16) << std::setfill('0')
       << Check_Sum(std::string_view(bytes).substr(behind)) << "\r\n";
  return bytes.insert(behind, line.str());
}

TEST(ResultReader, A_Sealed_Output_Is_Read_And_A_Changed_One_Told) {
  Results results;
  const std::string sealed = Sealed_Series();
  EXPECT_EQ(Said(Read_Series("a.dut", sealed, results)), "");
  std::string changed = sealed;
  char& last = changed[changed.rfind("\r\n") - 1];
  last = last == '1' ? '2' : '1';
  Results again;
  EXPECT_EQ(Said(Read_Series("a.dut", changed, again)),
            "line 4: the lines behind this one are not those that the solver wrote");
}

TEST(ResultReader, A_Sealed_Output_That_Lost_Any_Of_Its_Last_Lines_Is_Told) {
  const std::string sealed = Sealed_Series();
  int cuts = 0;
  for (std::size_t end = sealed.rfind("\r\n"); end > sealed.find("BODY  ") + 30;
       end = sealed.rfind("\r\n", end - 1)) {
    Results results;
    EXPECT_NE(Said(Read_Series("a.dut", sealed.substr(0, end), results)), "") << end;
    ++cuts;
  }
  EXPECT_GT(cuts, 8);
}

TEST(ResultReader, A_Limit_And_The_Verdicts_Are_Read) {
  Results results;
  ASSERT_EQ(Said(Read_Series("a.dut", kSmallSeries, results)), "");
  ASSERT_EQ(results.limits.size(), 1u);
  const Result_Limit& limit = results.limits[0];
  EXPECT_EQ(limit.species, 2);
  EXPECT_EQ(limit.where, Result_Where::outside);
  EXPECT_EQ(limit.value, 2);
  EXPECT_EQ(limit.from, 0);
  EXPECT_TRUE(limit.exceeded);
  EXPECT_EQ(limit.first, 600);
  EXPECT_EQ(limit.last, 900);
  EXPECT_EQ(limit.worst, 2.5);
  EXPECT_EQ(limit.worst_time, 750);
  EXPECT_EQ(limit.of, "criterion outside the disposal site");
  EXPECT_EQ(results.verdicts, (std::vector<std::string>{"criterion outside the disposal site, 2 %:",
                                                        "  exceeded from 600 s to 900 s"}));
}

TEST(ResultReader, Maps_Have_Their_Windows_And_The_Site_Its_Corners) {
  Results results;
  ASSERT_EQ(Said(Read_Series("a.dut", kSmallSeries, results)), "");
  ASSERT_EQ(Said(Read_Maps("a.duc", kSmallMaps, results)), "");
  EXPECT_EQ(results.grid.rows, 3);
  EXPECT_EQ(results.grid.columns, 4);
  EXPECT_EQ(results.grid.spacing_x, 50);
  EXPECT_EQ(results.grid.spacing_z, 20);
  ASSERT_TRUE(results.site && results.zid && results.disposal);
  EXPECT_EQ(results.site->top, 0);
  EXPECT_EQ(results.site->bottom, 50);
  EXPECT_EQ(results.site->left, 20);
  EXPECT_EQ(results.site->right, 40);
  EXPECT_EQ(results.zid->right, 20);
  EXPECT_EQ(results.disposal->x, 55);
  EXPECT_EQ(results.disposal->z, 25);

  ASSERT_EQ(results.maps.size(), 4u);
  EXPECT_EQ(results.maps[0].species, 1);
  EXPECT_EQ(results.maps[0].depth, 5);
  EXPECT_EQ(Whole_Grid(results.grid, results.maps[0]).values,
            (std::vector<double>{0, 0, 0, 0, 0, 1, 2.5, 0, 0, 15, 0.125, 3}));
  EXPECT_EQ(Whole_Grid(results.grid, results.maps[1]).values,
            (std::vector<double>{4, 2.25, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
  EXPECT_TRUE(results.maps[3].values.empty());
  ASSERT_EQ(results.beds.size(), 4u);
  EXPECT_EQ(results.beds[2].time, 1200);
  EXPECT_EQ(results.beds[2].species, 0);
  EXPECT_EQ(results.beds[2].values, (std::vector<double>{0.3}));
  ASSERT_EQ(results.most.size(), 2u);
  EXPECT_EQ(results.most[1].values, (std::vector<double>{4}));
}

TEST(ResultReader, A_Mixing_Zone_Is_Told_From_A_Disposal_Site) {
  Results results;
  ASSERT_EQ(Said(Read_Maps("a.duc", kSmallMaps, results)), "");
  EXPECT_FALSE(results.mixing_zone);
  Results zone;
  ASSERT_EQ(Said(Read_Maps("a.duc", With(kSmallMaps, "SITE", "ZONE"), zone)), "");
  EXPECT_TRUE(zone.mixing_zone);
  ASSERT_TRUE(zone.site);
  EXPECT_EQ(zone.site->bottom, 50);
  EXPECT_EQ(Of_Maps(With(kSmallMaps, "ZIDR", "ZONE")), "line 6: a second line of this tag");
}

TEST(ResultReader, Line_Feeds_Alone_And_A_Last_Line_Without_End_Are_Read) {
  for (std::string bytes : {kSmallSeries, kSmallMaps, kSmallPhases}) {
    const bool series = bytes == kSmallSeries, maps = bytes == kSmallMaps;
    const auto said = [&] {
      return series ? Of_Series(bytes) : maps ? Of_Maps(bytes) : Of_Phases(bytes);
    };
    EXPECT_EQ(said(), "");
    bytes.resize(bytes.size() - 2);
    EXPECT_EQ(said(), "");
    std::erase(bytes, '\r');
    EXPECT_EQ(said(), "");
  }
}

TEST(ResultReader, Outputs_Of_Before_Have_No_Sum_And_No_Site) {
  Results results;
  const std::string sum = "INPU  0123456789abcdef\r\n";
  ASSERT_EQ(Said(Read_Series("a.dut", With(kSmallSeries, sum, ""), results)), "");
  std::string maps = With(kSmallMaps, sum, "");
  maps.erase(maps.find("SITE"), maps.find("MAP  ") - maps.find("SITE"));
  ASSERT_EQ(Said(Read_Maps("a.duc", maps, results)), "");
  EXPECT_FALSE(results.input_sum || results.site || results.zid || results.disposal);
}

TEST(ResultReader, Descent_And_Collapse_Alone_Have_Masses_And_Deposits_Only) {
  std::string series = kSmallSeries, maps = kSmallMaps;
  series.erase(series.find("MAXI"), series.find("MASS") - series.find("MAXI"));
  maps.erase(maps.find("MAP  "), maps.find("BED  ") - maps.find("MAP  "));
  maps.erase(maps.find("MOST"));
  Results results;
  EXPECT_EQ(Said(Read_Series("a.dut", series, results)), "");
  EXPECT_EQ(Said(Read_Maps("a.duc", maps, results)), "");
  EXPECT_TRUE(results.maps.empty() && results.most.empty() && results.maxima.empty());
}

TEST(ResultReader, Anothers_Output_Is_Foreign_And_Shown_As_It_Begins) {
  Results results;
  Problem problem = Read_Series("b/a.dut", "TIDE MODEL 7\r\nSeries\r\n", results);
  ASSERT_TRUE(problem);
  EXPECT_TRUE(problem->foreign);
  EXPECT_EQ(problem->file, "b/a.dut");
  EXPECT_EQ(problem->Words(), "a.dut, line 1: written by another solver: \"TIDE MODEL 7\"");
  EXPECT_EQ(Of_Series(""), "line 1: no label of the companion solver");
  EXPECT_EQ(Series_With("Time series", "Maps"), "line 2: not \"Time series\" of a project");
}

TEST(ResultReader, What_Is_Wrong_In_The_Series_Is_Told_With_Its_Line_And_Columns) {
  EXPECT_EQ(Series_With("INPU  0123", "INPU  012x"),
            "line 3: no 16 digits of a sum in columns 7 to 22");
  EXPECT_EQ(Series_With("SPEC     2", "SPEC     3"),
            "line 5: not one of 2 to 2 in columns 6 to 10");
  EXPECT_EQ(Series_With("mg/l", "mg/L"), "line 4: no unit \"mg/l\" or \"%\"");
  EXPECT_EQ(Series_With("LIMI     2", "LIMI     3"),
            "line 6: not one of 1 to 2 in columns 6 to 10");
  EXPECT_EQ(Series_With("    1  6.0", "    2  6.0"),
            "line 6: not one of 0 to 1 in columns 44 to 48");
  EXPECT_EQ(Series_With("MAXI   6.000000e+02", "MAXI   6.0000O0e+02"),
            "line 9: no number in columns 6 to 19");
  EXPECT_EQ(Series_With("1.500000e+01", "         nan"), "line 9: no number in columns 39 to 52");
  EXPECT_EQ(Series_With("1.500000e+01", "1.50000e+101"), "line 9: no number in columns 39 to 52");
  EXPECT_EQ(Series_With("1.500000e+01", "1.500000e+01 "), "line 9: no number in columns 67 to 80");
  EXPECT_EQ(Series_With("2.500000e+00  0.000000e+00\r", "2.500000e+00\r"),
            "line 9: the line ends in column 66, and columns 67 to 80 are not whole");
  EXPECT_EQ(Series_With("2.500000e+00  0.000000e+00\r", "2.500000e+00  0.000000e+00 \r"),
            "line 9: the line goes on behind column 80, where it should end");
  EXPECT_EQ(Series_With("PEAK ", "PICK "), "line 13: \"PICK \" begins no line of this output");
  EXPECT_EQ(Series_With("MASS ", "\r\nMASS "), "line 17: \"\" begins no line of this output");
}

TEST(ResultReader, Rows_Come_In_The_Order_Of_Their_Times_Each_With_All_Species) {
  EXPECT_EQ(Series_With("MAXI   1.200000e+03    1", "MAXI   5.000000e+02    1"),
            "line 11: a time before that of the line above");
  EXPECT_EQ(Series_With("MAXI   1.200000e+03    1", "MAXI   1.200000e+03    2"),
            "line 11: not the species or depth in its turn");
  const std::size_t last = kSmallSeries.rfind("MASS");
  EXPECT_EQ(Of_Series(kSmallSeries.substr(0, last)),
            "line 20: the output is not whole: the time before has 1 line instead of 2");
  EXPECT_EQ(Of_Series(kSmallSeries.substr(0, kSmallSeries.find("MASS"))),
            "line 17: the output is not whole: no MASS line");
  EXPECT_EQ(Of_Series(kSmallSeries.substr(0, kSmallSeries.find("MASS   1.2"))),
            "line 19: the output is not whole: MASS lines of some times are missing");
}

// The two times hold the same number of lines, but not one for each of the two species.
TEST(ResultReader, A_Species_That_Is_Missing_From_All_Times_Is_Told) {
  std::string series = kSmallSeries;
  for (const char* line : {"MASS   6.000000e+02    2", "MASS   1.200000e+03    2"}) {
    const std::size_t at = series.find(line);
    series.erase(at, series.find('\n', at) + 1 - at);
  }
  EXPECT_EQ(Of_Series(series), "line 19: the output is not whole: a species has fewer lines");
}

TEST(ResultReader, Largest_Values_Without_Their_Places_Are_Not_Whole) {
  std::string series = kSmallSeries;
  const std::size_t at = series.find("PEAK   1.2");
  series.erase(at, series.find("MASS") - at);
  EXPECT_EQ(Of_Series(series),
            "line 19: the output is not whole: MAXI and PEAK lines of different times");
}

TEST(ResultReader, Species_Come_Before_All_Series_And_Are_99_At_Most) {
  EXPECT_EQ(Of_Series(kSmallSeries + "SPEC     3  Lead      mg/l\r\n"),
            "line 21: a species behind the series");
  std::string species;
  for (int i = 1; i <= 100; ++i) {
    std::string number = std::to_string(i);
    number.insert(0, 5 - number.size(), ' ');
    species.append("SPEC ").append(number).append("  Lead      mg/l\r\n");
  }
  EXPECT_EQ(Of_Series(kSmallSeries.substr(0, kSmallSeries.find("SPEC")) + species),
            "line 103: more species than a run has");
}

TEST(ResultReader, What_Is_Wrong_In_The_Maps_Is_Told_With_Its_Line_And_Columns) {
  EXPECT_EQ(Maps_With("GRID", "GRIT"), "line 4: no GRID line");
  EXPECT_EQ(Maps_With("GRID     3", "GRID     0"),
            "line 4: not one of 1 to 500 in columns 6 to 10");
  EXPECT_EQ(Maps_With("GRID     3", "GRID 99999"),
            "line 4: not one of 1 to 500 in columns 6 to 10");
  EXPECT_EQ(Maps_With("  2.000000e+01\r", "  0.000000e+00\r"),
            "line 4: a spacing that is not above 0");
  EXPECT_EQ(Maps_With("SITE   0.000000e+00  5.0", "SITE   6.000000e+01  5.0"),
            "line 5: an area that ends before it begins");
  EXPECT_EQ(Maps_With("ZIDR", "SITE"), "line 6: a second line of this tag");
  EXPECT_EQ(Maps_With("MAP    6.000000e+02    1", "MAP    6.000000e+02    3"),
            "line 8: not one of 1 to 2 in columns 20 to 24");
  EXPECT_EQ(Maps_With("    2    3    2    4\r", "    2    3    2    5\r"),
            "line 8: not one of 0 to 4 in columns 68 to 72");
  EXPECT_EQ(Maps_With("    2    3    2    4\r", "    2    3    4    3\r"),
            "line 8: a window without rows that has columns, or the other way");
  EXPECT_EQ(Maps_With("    2    3    2    4\r", "    1    3    2    4\r"),
            "line 11: no number in columns 1 to 11");
  EXPECT_EQ(Maps_With(" 1.5000e+01", " 1.5000e*01"), "line 10: no number in columns 1 to 11");
  EXPECT_EQ(Maps_With(" 3.0000e+00\r", "\r"),
            "line 10: the line ends in column 22, and columns 23 to 33 are not whole");
}

TEST(ResultReader, Cut_Maps_Are_Not_Whole) {
  const std::string not_whole = "the output is not whole: ";
  EXPECT_EQ(Of_Maps(kSmallMaps.substr(0, kSmallMaps.find(" 1.5000e+01"))),
            "line 10: the output ends within a map");
  EXPECT_EQ(Of_Maps(kSmallMaps.substr(0, kSmallMaps.find("MOST"))),
            "line 24: " + not_whole + "MAP and MOST lines of different species or depths");
  EXPECT_EQ(Of_Maps(kSmallMaps.substr(0, kSmallMaps.rfind("MOST"))),
            "line 26: " + not_whole + "MAP and MOST lines of different species or depths");
  EXPECT_EQ(Of_Maps(kSmallMaps.substr(0, kSmallMaps.find("BED  "))),
            "line 16: " + not_whole + "no BED line");
}

/// Every beginning of an output, cut at any byte, is sound or told: the whole one alone is sound.
TEST(ResultReader, No_Beginning_Of_An_Output_Passes_For_The_Whole) {
  for (std::size_t size = 0; size + 2 < kSmallSeries.size(); ++size) {
    EXPECT_NE(Of_Series(kSmallSeries.substr(0, size)), "") << size;
  }
  for (std::size_t size = 0; size + 2 < kSmallMaps.size(); ++size) {
    EXPECT_NE(Of_Maps(kSmallMaps.substr(0, size)), "") << size;
  }
}

TEST(ResultReader, Descent_And_Collapse_Are_Held_To_Their_Columns) {
  EXPECT_EQ(Of_Phases(With(kSmallPhases, "PHAS     1", "PHAS     2")),
            "line 4: not one of 1 to 1 in columns 6 to 10");
  EXPECT_EQ(Of_Phases(With(kSmallPhases, "PHAS     1", "STEP     1")),
            "line 4: a step before the first phase");
  EXPECT_EQ(Of_Phases(With(kSmallPhases, "8.000000e+00", "8.000000e+x0")),
            "line 5: no number in columns 76 to 89");
  EXPECT_EQ(Of_Phases(With(kSmallPhases, "  1.000000e+02\r", "\r")),
            "line 5: a step without solids");
  const std::string step = kSmallPhases.substr(kSmallPhases.find("STEP"));
  EXPECT_EQ(Of_Phases(kSmallPhases + step), "");
  EXPECT_EQ(Of_Phases(kSmallPhases + With(step, "\r", "  1.000000e+02\r")),
            "line 6: not as long as the steps before");
  EXPECT_EQ(Of_Phases(With(kSmallPhases, "PHAS     1  ", "PHAS     1 x")),
            "line 4: no blanks in columns 11 to 12");
  EXPECT_EQ(Of_Phases(kSmallPhases + "STOP \r\n"),
            "line 6: \"STOP \" begins no line of this output");
}

TEST(ResultReader, Outputs_Of_Another_Run_Do_Not_Go_With_These) {
  EXPECT_EQ(Maps_With("INPU  0", "INPU  1"),
            "line 3: outputs of different runs: another model input");
  EXPECT_EQ(Maps_With("INPU  0123456789abcdef\r\n", ""),
            "line 3: outputs of different runs: another model input");
  EXPECT_EQ(Maps_With("wenbank", "wenboje"), "line 2: outputs of different runs: another title");
  EXPECT_EQ(Maps_With("SOLVER 1.0", "SOLVER 1.1"),
            "line 1: outputs of different runs: another version of the solver");
}

// ---- Files

class ResultFiles : public ::testing::Test {
 protected:
  void Write_All() {
    Write_Text(folder_ / "Bank.dut", kSmallSeries);
    Write_Text(folder_ / "Bank.duc", kSmallMaps);
    Write_Text(folder_ / "Bank.dup", kSmallPhases);
  }
  std::string Words_Of(const std::string& path) {
    const Results_Or_Problem read = Read_Results(path);
    const auto* problem = std::get_if<Result_Problem>(&read);
    return problem ? problem->Words() : "";
  }

  Scratch_Folder folder_;
};

TEST_F(ResultFiles, They_Are_Found_Beside_The_Project_Whatever_Their_Case) {
  Write_All();
  std::filesystem::rename(folder_ / "Bank.duc", folder_ / "BANK.DUC");
  for (const char* asked : {"Bank.DUI", "bank.dui", "Bank.dut", "Bank.duo"}) {
    const Results_Or_Problem read = Read_Results(folder_ / asked);
    const auto* results = std::get_if<Results>(&read);
    ASSERT_NE(results, nullptr) << asked;
    EXPECT_EQ(results->path, folder_ / asked);
    EXPECT_EQ(results->maps.size(), 4u);
    struct stat status {};
    ASSERT_EQ(::stat((folder_ / "Bank.dut").c_str(), &status), 0);
    EXPECT_EQ(results->made, status.st_mtime);
  }
}

TEST_F(ResultFiles, What_Was_Compared_Tells_A_Mixing_Zone_That_Stands_As_A_Site) {
  Write_All();
  const auto is_zone = [this] {
    return std::get<Results>(Read_Results(folder_ / "Bank.DUI")).mixing_zone;
  };
  EXPECT_FALSE(is_zone());
  Write_Text(folder_ / "Bank.dut",
             With(kSmallSeries, "outside the disposal site\r", "outside the mixing zone\r"));
  EXPECT_TRUE(is_zone());
}

TEST_F(ResultFiles, Descent_And_Collapse_May_Be_Missing_The_Others_Are_Told_By_Name) {
  Write_All();
  std::filesystem::remove(folder_ / "Bank.dup");
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "");
  std::filesystem::remove(folder_ / "Bank.duc");
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "Bank.duc: there is no such file");
  std::filesystem::remove(folder_ / "Bank.dut");
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "Bank.dut: there is no such file");
}

TEST_F(ResultFiles, A_Dot_In_The_Name_And_Letters_Beyond_Ascii_Are_No_Matter) {
  const std::string name = folder_ / "M\xC3\xB6wen bank v1.2 \"x\"";
  Write_Text(name + ".dut", kSmallSeries);
  Write_Text(name + ".duc", kSmallMaps);
  EXPECT_EQ(Words_Of(name + ".DUI"), "");
}

TEST_F(ResultFiles, Another_Solvers_Listing_Alone_Is_Foreign) {
  Write_Text(folder_ / "Bank.duo", "TIDE MODEL 7\r\n");
  const Results_Or_Problem read = Read_Results(folder_ / "Bank.DUI");
  const auto* problem = std::get_if<Result_Problem>(&read);
  ASSERT_NE(problem, nullptr);
  EXPECT_TRUE(problem->foreign);
  EXPECT_EQ(problem->file, folder_ / "Bank.duo");
  Write_Text(folder_ / "Bank.duo", kSmallLabel);
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "Bank.dut: there is no such file");
}

TEST_F(ResultFiles, A_Folder_Or_A_Pipe_In_An_Outputs_Place_Is_Told) {
  Write_All();
  std::filesystem::remove(folder_ / "Bank.duc");
  std::filesystem::create_directory(folder_ / "Bank.duc");
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "Bank.duc: can't be read: Is a directory");
  std::filesystem::remove(folder_ / "Bank.duc");
  ASSERT_EQ(::mkfifo((folder_ / "Bank.duc").c_str(), 0600), 0);
  EXPECT_EQ(Words_Of(folder_ / "Bank.DUI"), "Bank.duc: can't be read: Operation not supported");
}

}  // namespace
}  // namespace barvon::testing
