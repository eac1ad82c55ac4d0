# Sourced by run_cost.sh; bench/planted_costs.sh holds it to costs that are made up.

# What so many projects in one call took, beside the solver alone and 10 projects. The figures are
# medians, elapsed and of the processor in ms: of the projects, of the solver, of the 10. What is
# compared with the 10 is what a project takes above its solver, whose own time would hide a growth;
# in one project the start of the program counts. Fails when a goal is missed: 20 ms a project above
# the solver, from 10 projects on never 1.5 times those of 10.
judge_share() { # projects, rounds, six figures
  local projects=$1 rounds=$2
  shift 2
  echo "$@" | awk -v n="$projects" -v rounds="$rounds" '{
    # A figure that is missing would shift the others, and none compares with NaN.
    whole = NF == 6 && $1 > 0 && $3 > 0 && $5 / 10 > $3
    for (i = 1; i <= NF; ++i) whole = whole && $i ~ /^[0-9]+([.][0-9]+)?$/
    if (!whole) {
      printf "%4d at once: no figures (%s)  MISSED\n", n, $0
      exit 1
    }
    above = $1 / n - $3
    grown = above / ($5 / 10 - $3)
    met = above <= 20 && (n < 10 || grown <= 1.5)
    printf "%4d at once, above it: %.1f ms a project (goal 20), %.1f of the processor, ",
           n, above, $2 / n - $4
    if (n >= 10) printf "%.2f of 10 (goal 1.5), ", grown
    if (n >= 10 && $6 / 10 > $4) printf "%.2f of the processor, ", ($2 / n - $4) / ($6 / 10 - $4)
    printf "%d rounds  %s\n", rounds, met ? "met" : "MISSED"
    exit !met
  }'
}
