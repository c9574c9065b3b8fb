#!/bin/bash
# The short fuzz pass: configures and builds build-fuzz (clang, libFuzzer, ASan + UBSan), makes
# the seeds, runs every target in turn for SECONDS (30 by default) and fails on any finding.
# One line a target: executions, exec/s, result. Findings are kept in build-fuzz/trouvailles/.
# Usage: outils/fuzz-court.sh [SECONDS] [TARGET...]
set -uo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
build=$racine/build-fuzz
duree=${1:-30}
shift || true
cibles=("$@")
[ ${#cibles[@]} -gt 0 ] || cibles=(noeuds_long noeuds_court arcs_long arcs_court arcs_ajoutes noeudval arcval facettes
                                    comparaison metafichier scenario)

mkdir -p "$build"
CC=clang CXX=clang++ cmake -S "$racine" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVA_FUZZ=ON -DORVA_TESTS=OFF \
  >"$build/configuration.log" 2>&1 || { cat "$build/configuration.log"; exit 1; }
nice -n 10 cmake --build "$build" -j2 >"$build/construction.log" 2>&1 || { tail -40 "$build/construction.log"; exit 1; }
bash "$racine/fuzz/graines.sh" "$build" >/dev/null || exit 1

export QT_QPA_PLATFORM=offscreen LC_ALL=C
export LSAN_OPTIONS="suppressions=$racine/outils/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
mkdir -p "$build/trouvailles"
echec=0
for c in "${cibles[@]}"; do
  corpus=$build/corpus/$c
  journal=$build/trouvailles/$c.log
  mkdir -p "$corpus"
  nice -n 10 "$build/fuzz/fuzz_$c" -max_len=65536 -rss_limit_mb=2048 -timeout=10 -max_total_time="$duree" \
    -print_final_stats=1 -artifact_prefix="$build/trouvailles/$c-" "$corpus" "$build/graines/$c" >"$journal" 2>&1
  rc=$?
  execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$journal" | tail -1)
  vitesse=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$journal" | tail -1)
  if [ $rc -eq 0 ]; then
    resultat=ok
  else
    resultat="TROUVAILLE ($(grep -m1 -E 'ERROR|runtime error|SUMMARY' "$journal" | cut -c1-100)), voir $journal"
    echec=1
  fi
  printf '%-13s %9s exécutions %5s exec/s  %s\n' "$c" "${execs:-?}" "${vitesse:-?}" "$resultat"
done
exit $echec
