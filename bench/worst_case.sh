#!/usr/bin/env bash
# Writes a model input into a folder, with the marker that names it: the largest that the companion
# solver is meant for. 96 by 96 points with a depth grid and a field of eddies, 4 solids and a
# tracer, 4 depths, 6 layers of a moving barge (18 clouds), 4 hours in steps of 600 s, 12 print times.
#
#   bench/worst_case.sh FOLDER
set -euo pipefail
export LC_ALL=C
folder=$1
mkdir -p "$folder"
printf 'DUE   , ,                            ,%37s,TmpFile ,%27s,\r\n' '' '' > "$folder/KOLBREE.TMP"
awk '
  function row(list, width, format,   n, i, item, line) {
    n = split(list, item, " ")
    line = ""
    for (i = 1; i <= n; ++i) line = line sprintf("%" width "s", item[i])
    printf "%s\r\n", line
  }
  function grid(what, width,   a, b, line, value) {
    for (a = 1; a <= 96; ++a) {
      line = ""
      for (b = 1; b <= 96; ++b) {
        if (what == "depth") value = sprintf("%.1f", 90 + 20 * sin(a / 9) * cos(b / 11))
        if (what == "x") value = sprintf("%.3f", 0.5 + 0.2 * sin(6.2832 * b / 24))
        if (what == "z") value = sprintf("%.3f", 0.2 * sin(6.2832 * a / 24))
        line = line sprintf("%" width "s", value + 0)
        if (b % 10 == 0 || b == 96) { printf "%s\r\n", line; line = "" }
      }
    }
  }
  BEGIN {
    printf "%7s%8s\r\n", "DUE", 3
    printf "%-60s\r\n", "The worst case"
    row("96 96 4 6 0 0 0", 5)
    row("1 0 2 0 0 0 0", 5)
    row("30 60 30 60", 5)
    row("2900 5900 2900 5900", 10)
    row("1 1 12 0", 5)
    row("4", 5)
    row("5 30 60 85", 10)
    row("90 100 100", 10)
    row("0 0", 5)
    grid("depth", 7)
    row("3000 4700 0 0 0 0 0", 10)
    row("0.005", 10)
    row("3", 5)
    row("0 40 90", 10)
    row("1.018 1.02 1.023", 10)
    row("4", 5)
    grid("x", 8)
    grid("z", 8)
    row("14400 600 225", 10)
    row("200 50 14 5 1.02", 10)
    row("0.235 0 1 0.5", 10)
    row("0.25 1 0.01 0.1 1 0.1 0.01", 10)
    row("0.001 0.025 0.003", 10)
    for (layer = 1; layer <= 6; ++layer) {
      row("5 1 700 0", 10)
      printf "%-10s%10s%10s%10s%10s%10s%5d%5d%5d\r\n", "SAND", 2.65, 0.05, 0.07, 0.7, 0.02, 0, 1, 0
      printf "%-10s%10s%10s%10s%10s%10s%5d%5d%5d\r\n", "FINE SAND", 2.65, 0.04, 0.02, 0.8, 0.015, 0, 1, 1
      printf "%-10s%10s%10s%10s%10s%10s%5d%5d%5d\r\n", "SILT", 2.65, 0.06, 0.006, 3, 0.009, 1, 1, 1
      printf "%-10s%10s%10s%10s%10s%10s%5d%5d%5d\r\n", "CLAY", 2.65, 0.04, 0.0012, 5, 0.002, 1, 1, 1
      printf "%-10s%10s%10s%10s%10s\r\n", "COPPER", "1.02", 50, 0.002, 0.05
    }
    for (i = 1; i <= 12; ++i) {
      printf "%10s", sprintf("%.1f", i * 1200)
      if (i % 8 == 0 || i == 12) printf "\r\n"
    }
  }' > "$folder/Tmpfile.Due"
