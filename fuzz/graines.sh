#!/bin/bash
# Seed corpora of the fuzz targets: the bundled data, the test data, the generator's broken
# files and the scenarios, one folder a target, each file cut to 64 KiB (the runs' -max_len).
# Usage: fuzz/graines.sh [BUILD_DIR] [OUT_DIR]   (defaults build-fuzz, BUILD_DIR/graines)
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$racine/build-fuzz}
sortie=${2:-$build/graines}
casses=$build/casses
rm -rf "$sortie" "$casses"
"$build/outils/orva-donnees" --casses "$casses" >/dev/null

# copie TARGET FILE...: the files that exist, cut to 64 KiB, named by their path.
copie() {
  local cible=$1; shift
  mkdir -p "$sortie/$cible"
  local f
  for f in "$@"; do
    [ -f "$f" ] || continue
    head -c 65536 "$f" > "$sortie/$cible/$(echo "${f#"$racine"/}" | tr '/' '_')"
  done
}

cd "$racine"
copie noeuds_long data/noeuds/* tests/donnees-test/*/data/noeuds/* "$casses"/n_*.dat "$casses"/binaire.dat
copie noeuds_court data/vil/* tests/donnees-test/*/data/vil/* "$casses"/n_court*.dat "$casses"/n_tronques.dat "$casses"/binaire.dat
for c in arcs_long arcs_ajoutes comparaison; do
  copie $c tests/donnees-test/*/data/arcs/* "$casses"/a_*.dat "$casses"/binaire.dat
done
copie arcs_court data/od/* tests/donnees-test/*/data/od/* "$casses"/a_court*.dat "$casses"/a_tronques.dat "$casses"/binaire.dat
copie comparaison data/od/* tests/donnees-test/*/data/od/*
copie noeudval data/noeudval/* "$casses"/noeudval_*.dat "$casses"/binaire.dat
copie arcval "$casses"/arcval_*.dat "$casses"/binaire.dat
copie facettes tests/donnees-test/*/data/facettes/* "$casses"/binaire.dat
copie metafichier tests/donnees-test/*/data/cartes/images/*.wmf "$casses"/binaire.dat
copie scenario tests/scenarios/*.scn demo/demo.scn
# The bundled arcs and arc values, whole files far beyond 64 KiB, cut at a line end.
for c in arcs_long arcs_ajoutes comparaison; do head -n 300 data/arcs/a157eu01.dat > "$sortie/$c/data_arcs_a157eu01.dat"; done
head -n 600 data/arcval/3ar1279.dat > "$sortie/arcval/data_arcval_3ar1279.dat"

# A metafile with a record of every kind the player knows: pen, brush, font, lines, shapes, text.
python3 - "$sortie/metafichier/toutes_fonctions.wmf" <<'PY'
import struct, sys
def rec(f, *mots): return struct.pack('<IH', 3 + len(mots), f) + struct.pack('<%dH' % len(mots), *[m & 0xFFFF for m in mots])
texte = b'Paris'
corps = b''.join([
    rec(0x0103, 8), rec(0x020B, 0, 0), rec(0x020C, 600, 800),
    rec(0x02FA, 0, 3, 0, 0x00FF, 0), rec(0x012D, 0),
    rec(0x02FC, 0, 0xFF00, 0, 0), rec(0x012D, 1),
    rec(0x02FB, -40, 0, 0, 0, 700, 0x0001, 0, 0, 0x4241, 0x4443, 0),
    rec(0x012D, 2),
    rec(0x0214, 10, 10), rec(0x0213, 500, 700),
    rec(0x0325, 3, 0, 0, 100, 50, 200, 0), rec(0x0324, 3, 10, 10, 300, 10, 150, 250),
    rec(0x0418, 100, 100, 300, 400), rec(0x041B, 50, 50, 200, 250),
    rec(0x0521, len(texte), *struct.unpack('<3H', texte + b'\0'), 100, 100),
    rec(0x01F0, 0), rec(0x01F0, 1), rec(0x01F0, 2)]) + struct.pack('<IH', 3, 0)
mots = len(corps) // 2
entete = struct.pack('<HHHIHIH', 1, 9, 0x300, 9 + mots, 3, 16, 0)
cle = struct.pack('<IHhhhhHI', 0x9AC6CDD7, 0, 0, 0, 800, 600, 1440, 0)
somme = 0
for i in range(0, 20, 2): somme ^= struct.unpack('<H', cle[i:i + 2])[0]
open(sys.argv[1], 'wb').write(cle + struct.pack('<H', somme) + entete + corps)
PY

# Facets: triangles of the standard towns, codes in columns 1-10, 12-21 and 23-32.
printf '%10s %10s %10s\r\n' 440001 440016 440020 490001 490002 490003 440001 490001 330001 > "$sortie/facettes/triangles_standard.dat"
for d in "$sortie"/*/; do echo "$(basename "$d"): $(ls "$d" | wc -l) graines"; done
