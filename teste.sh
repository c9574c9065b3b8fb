#!/usr/bin/env bash
# Installs what is missing, builds ORVA and passes every test: once in the normal build, once
# built with AddressSanitizer and UndefinedBehaviorSanitizer; then a short fuzz pass of the readers.
set -euo pipefail
racine="$(cd "$(dirname "$0")" && pwd)"
cd "$racine"
bash ./dependances.sh
bash ./outils/verifie-programmes.sh
export QT_QPA_PLATFORM=offscreen LC_ALL=C
coeurs="$(nproc)"

echo "== Construction et tests ==" >&2
cmake -S . -B build-test -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build-test -j"$coeurs"
(cd build-test && ctest --output-on-failure -j"$coeurs" --timeout 300)

echo "== Construction et tests sous ASan + UBSan ==" >&2
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export LSAN_OPTIONS="suppressions=$racine/outils/lsan.supp:print_suppressions=0"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DORVA_SANITIZE=ON >/dev/null
cmake --build build-asan -j"$coeurs"
(cd build-asan && ctest --output-on-failure -j"$coeurs" --timeout 600)

echo "== Passe courte de fuzzing des lecteurs ==" >&2
bash "$racine/outils/fuzz-court.sh" 30
