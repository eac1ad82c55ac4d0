#include <cstdlib>
#include <limits>
#include <memory>

#include "attacks/attacked_saves.h"
#include "core/desk/project_hold.h"
#include "platform/files/lock_file.h"
#include "recovery/recovery_folder.h"
#include "recovery/recovery_keeper.h"

namespace barvon::testing {
namespace {

constexpr char kProject[] = "bay/a.DUI";
constexpr char kProjectLock[] = "bay/.a.DUI.barvon-lock";

/// That of the window that a save's process stands for. It lasts as long as the process.
std::unique_ptr<Recovery_Keeper>& Keeper() {
  static std::unique_ptr<Recovery_Keeper> keeper;
  return keeper;
}

void Change(Attack_Bench& bench, const std::string& title) {
  bench.record->ProjectTitle = title;
  bench.record->DataSaved = kFalse;
}

/// Has the keeper look so often, over a copy of an earlier change or where there is none.
Attacked_Save Recovery_Save(const std::string& name, bool over_former, int looks) {
  Attacked_Save save;
  save.name = name;
  save.files = {"data/barvon/recovery/0.barvon-copy"};
  save.lay = [](const Attack_Bench&) {};
  save.prepare = [over_former](Attack_Bench& bench) {
    bench.record = Changed_Sample(bench);
    Keeper() = std::make_unique<Recovery_Keeper>(*bench.record);
    if (!over_former) return;
    Change(bench, "The first change");
    Keeper()->Look();
  };
  save.save = [looks](Attack_Bench& bench) {
    Change(bench, "The second change");
    for (int i = 0; i < looks; ++i) Keeper()->Look();
    // A failure that lasts is told once.
    if (bench.told.size() > 1) std::abort();
  };
  save.makes_new = false;
  save.start = [](const Attack_Bench&) { Take_Left_Copies(); };
  return save;
}

/// Opens a project where nobody, or a program that has ended, has a lock of it.
Attacked_Save Lock_Save(const std::string& name, bool over_former) {
  Attacked_Save save;
  save.name = name;
  save.files = {kProjectLock};
  save.lay = [over_former](const Attack_Bench& bench) {
    Put_File(bench.In(kProject), Sample_Bytes("Section_404_Zid.DUI"));
    if (!over_former) return;
    Lock_Holder ended = This_Program();
    ended.user = "former";
    ended.process = std::numeric_limits<int>::max();
    Put_File(bench.In(kProjectLock), Holder_Lines(ended));
  };
  save.prepare = [](Attack_Bench&) {};
  save.save = [](Attack_Bench& bench) {
    Project_Claim claim;
    if (claim.To_Open(bench.In(kProject))) claim.Keep();
  };
  save.makes_new = false;
  save.is_lock = true;
  // Whoever opens the project next takes it over, and does away with it at the end.
  save.start = [](const Attack_Bench& bench) { Lock_File().Take(bench.In(kProjectLock)); };
  return save;
}

}  // namespace

std::vector<Attacked_Save> Kept_Saves() {
  return {Recovery_Save("recovery copy", true, 1), Recovery_Save("recovery copy (first)", false, 1),
          Recovery_Save("recovery copy, three looks", true, 3),
          Lock_Save("lock of a project (first)", false),
          Lock_Save("lock of an ended program", true)};
}

}  // namespace barvon::testing
