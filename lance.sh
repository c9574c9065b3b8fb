#!/usr/bin/env bash
# Installs what is missing, builds ORVA and runs it on the bundled standard network: the window
# when a display is there, otherwise the demo scenario, which says where its pictures went.
set -euo pipefail
racine="$(cd "$(dirname "$0")" && pwd)"
cd "$racine"
bash ./dependances.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$(nproc)" --target orva >&2

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec ./build/orva --racine "$racine"
fi

sortie="$racine/build/demo"
mkdir -p "$sortie"
cd "$sortie"
echo "Pas d'affichage : scénario de démonstration (demo/demo.scn)." >&2
./../orva --script "$racine/demo/demo.scn" --racine "$racine"
echo "Images écrites dans : $sortie" >&2
ls -1 "$sortie" >&2 || true
