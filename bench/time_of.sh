# Sourced by the scripts that measure whole commands.

# Milliseconds that a command takes, and of the processor, its children's included.
time_of() {
  local begun ended TIMEFORMAT='%3U %3S'
  begun=$(date +%s%N)
  { time "$@"; } 2> processor.txt
  ended=$(date +%s%N)
  awk -v taken="$((ended - begun))" '{printf "%.2f %.0f\n", taken / 1e6, 1000 * ($1 + $2)}' \
    processor.txt
}
# Of a file's column; of an even count the mean of the middle two.
median() {
  sort -n -k"$2,$2" "$1" | awk -v c="$2" '
    BEGIN {OFMT = "%.10g"}
    {v[NR] = $c}
    END {print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2}'
}
# How many rounds a file holds.
rounds_of() { wc -l < "$1"; }
