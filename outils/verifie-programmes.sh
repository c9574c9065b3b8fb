#!/usr/bin/env bash
# Fails early, naming the Debian package, when an outside program that a test starts is missing
# or cannot do its work on this machine. Each check runs the program for real on a tiny input.
set -uo pipefail
echec=0
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT

# wmf2svg: a metafile of one line; without the fonts of libwmf it stops before drawing anything.
printf '\x01\x00\x09\x00\x00\x03\x1b\x00\x00\x00\x00\x00\x05\x00\x00\x00\x00\x00'\
'\x05\x00\x00\x00\x0c\x02\x10\x00\x10\x00\x05\x00\x00\x00\x14\x02\x00\x00\x00\x00'\
'\x05\x00\x00\x00\x13\x02\x0a\x00\x0a\x00\x03\x00\x00\x00\x00\x00' > "$tmp/ligne.wmf"
if ! command -v wmf2svg >/dev/null 2>&1; then
  echo "wmf2svg manque : installez le paquet libwmf-bin." >&2
  echec=1
elif ! wmf2svg -o "$tmp/ligne.svg" "$tmp/ligne.wmf" >"$tmp/wmf2svg.txt" 2>&1 || ! grep -q '<line' "$tmp/ligne.svg"; then
  echo "wmf2svg ne fonctionne pas ($(head -c 200 "$tmp/wmf2svg.txt")) : installez le paquet fonts-urw-base35." >&2
  echec=1
fi

# clang with libFuzzer, which the short fuzz pass builds its targets with.
printf 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }\n' > "$tmp/cible.cpp"
if ! command -v clang++ >/dev/null 2>&1; then
  echo "clang++ manque : installez le paquet clang." >&2
  echec=1
elif ! clang++ -fsanitize=fuzzer,address,undefined -o "$tmp/cible" "$tmp/cible.cpp" >"$tmp/clang.txt" 2>&1; then
  echo "clang ne lie pas libFuzzer ($(head -c 200 "$tmp/clang.txt")) : installez le paquet libclang-rt-14-dev." >&2
  echec=1
fi

exit $echec
