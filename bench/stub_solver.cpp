// Stands in for a solver whose work is known: it sleeps, or computes for a while, and tells at the
// last moment what the clock says. Its order is the file "stub_solver.order" in its current folder:
// "sleep MILLISECONDS" or "compute ROUNDS".

#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstring>

#include "figures.h"

namespace {

double Compute(long rounds) {
  double value = 0.5;
  for (long i = 0; i < rounds * 1000; ++i) value = std::sqrt(value + 1.0 / (1 + value));
  return value;
}

}  // namespace

int main() {
  char verb[16] = "";
  long amount = 0;
  std::FILE* order = std::fopen("stub_solver.order", "r");
  if (order == nullptr || std::fscanf(order, "%15s %ld", verb, &amount) != 2) return 2;
  std::fclose(order);
  const double begun = barvon::bench::Now(CLOCK_MONOTONIC);
  double result = 0;
  if (std::strcmp(verb, "sleep") == 0) ::usleep(static_cast<useconds_t>(amount) * 1000);
  if (std::strcmp(verb, "compute") == 0) result = Compute(amount);
  std::FILE* told = std::fopen("stub_solver.told", "w");
  if (told == nullptr) return 2;
  const double ended = barvon::bench::Now(CLOCK_MONOTONIC);
  std::fprintf(told, "%.4f %.4f %.4f %.3f\n", ended, ended - begun,
               barvon::bench::Now(CLOCK_PROCESS_CPUTIME_ID), result);
  std::fclose(told);
  ::_exit(0);
}
