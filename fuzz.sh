#!/bin/sh
# Runs the fuzzers for so many minutes (10 if left out), as many at a time as the machine has cores,
# and prints what each did. Fails when anything was found.
#   ./fuzz.sh [MINUTES]
# A find lies in build/fuzz-finds, named by its fuzzer; give it to the fuzzer to see it again. What the
# fuzzers learn goes to build/fuzz-corpus, and the next run begins with it. Their executions and minutes
# are added to fuzz/executions, which holds those of all runs.
set -eu
cd "$(dirname "$0")"
minutes=${1:-10}

. packaging/install_packages.sh
install_packages "to build the fuzzers" clang libclang-rt-dev llvm cmake ninja-build ccache \
  libxlsxwriter-dev libminizip-dev libexpat1-dev locales
cmake --preset fuzz -DNORVANE_WERROR=ON >/dev/null
cmake --build --preset fuzz

fuzzers="address_files cell_ranges code_pages export language_files numbers recovery schedule_document schedule_file
  schedule_rows script_lines settings_file user_events workbook"
export LOCPATH="$PWD/build/fuzz/locales"
finds=build/fuzz-finds
mkdir -p "$finds"
# shellcheck disable=SC2086
set -- $fuzzers
cores=$(nproc)
[ "$cores" -le $# ] || cores=$#
seconds=$((minutes * 60 * cores / $#))
[ "$seconds" -gt 0 ] || seconds=1
echo "Each fuzzer runs for $seconds seconds."

# run_one FUZZER SECONDS: its last lines are the figures; a find stops it.
cat >build/fuzz/run_one <<'END'
mkdir -p "build/fuzz-corpus/$1"
dictionary=fuzz/dictionaries/$1.dict
[ -f "$dictionary" ] && dictionary=-dict=$dictionary || dictionary=
"build/fuzz/fuzz/fuzz_$1" -max_total_time="$2" -timeout=20 -max_len=1024 -rss_limit_mb=4096 \
  -print_final_stats=1 $dictionary -artifact_prefix="build/fuzz-finds/$1-" \
  "build/fuzz-corpus/$1" "fuzz/corpus/$1" >"build/fuzz/$1.log" 2>&1 ||
  echo "$1 has found something: see build/fuzz/$1.log"
END
printf '%s\n' "$@" | xargs -P "$cores" -I '{}' sh build/fuzz/run_one '{}' "$seconds"

figure() { sed -n "s/^stat::$2: *//p" "build/fuzz/$1.log"; }
# The edges of the program that the corpus reaches, and all that there are in this fuzzer.
reached() { grep -o 'cov: [0-9]*' "build/fuzz/$1.log" | tail -n 1 | cut -d ' ' -f 2; }
edges() { sed -n 's/.*(\([0-9]*\) inline 8-bit counters).*/\1/p' "build/fuzz/$1.log" | head -n 1; }
printf '%-18s %12s %10s %10s %14s %6s\n' fuzzer executions seconds corpus edges finds
: >build/fuzz/this_run
for fuzzer in $fuzzers; do
  executions=$(figure "$fuzzer" number_of_executed_units)
  printf '%-18s %12s %10s %10s %14s %6s\n' "$fuzzer" "$executions" "$seconds" \
    "$(find "build/fuzz-corpus/$fuzzer" -type f | wc -l)" "$(reached "$fuzzer") of $(edges "$fuzzer")" \
    "$(find "$finds" -name "$fuzzer-*" -newer build/fuzz/run_one | wc -l)"
  echo "$fuzzer ${executions:-0} $seconds" >>build/fuzz/this_run
done
cat fuzz/executions build/fuzz/this_run |
  awk '{ executions[$1] += $2; seconds[$1] += $3 }
       END { for (fuzzer in executions) print fuzzer, executions[fuzzer], seconds[fuzzer] }' |
  sort >build/fuzz/all_runs
mv build/fuzz/all_runs fuzz/executions
awk '{ sum += $2 } END { printf "%d executions in all runs so far\n", sum }' fuzz/executions
[ -z "$(find "$finds" -type f ! -name "*slow-unit*" -newer build/fuzz/run_one)" ]
