#!/usr/bin/env bash
# Installs the Debian packages ORVA needs to build, test and run, when they are missing.
# As root it installs them with apt-get; otherwise it says what to install and stops.
set -euo pipefail

paquets=(
  cmake make g++ pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev
  qt6-charts-dev libqt6opengl6-dev qt6-svg-dev
  libzip-dev
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  libtinygltf-dev
  qt6-translations-l10n
  fonts-liberation2 locales
  xvfb xauth
  # wmf2svg, which reads our metafiles back in the tests, and the fonts it cannot start without
  # (libwmf only recommends them).
  libwmf-bin fonts-urw-base35
  # ezdxf, which reads the DXF output back in a test.
  python3-ezdxf
  # clang and its libFuzzer, for the short fuzz pass of the readers.
  clang libclang-rt-14-dev
)

manquants=()
for p in "${paquets[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || manquants+=("$p")
done

if [ ${#manquants[@]} -gt 0 ]; then
  if [ "$(id -u)" -eq 0 ]; then
    echo "Installation de : ${manquants[*]}" >&2
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${manquants[@]}" >&2
  else
    echo "Paquets manquants. Installez-les avec :" >&2
    echo "  sudo apt-get install ${manquants[*]}" >&2
    exit 1
  fi
fi

# A French locale for the test that checks displayed values against files.
if [ "$(id -u)" -eq 0 ] && ! locale -a 2>/dev/null | grep -qi '^fr_FR\.utf8$'; then
  sed -i 's/^# *fr_FR.UTF-8 UTF-8/fr_FR.UTF-8 UTF-8/' /etc/locale.gen 2>/dev/null || true
  grep -q '^fr_FR.UTF-8 UTF-8' /etc/locale.gen 2>/dev/null || echo 'fr_FR.UTF-8 UTF-8' >> /etc/locale.gen
  locale-gen >/dev/null 2>&1 || true
fi
