#!/usr/bin/env bash
# Installs what Agenda needs to build, run and test, from Debian's packages.
set -euo pipefail
paquets=(build-essential cmake ninja-build qt6-base-dev libfontconfig-dev libgtest-dev
         libgmock-dev libbenchmark-dev xvfb xauth xdotool x11-utils imagemagick fonts-liberation
         fonts-dejavu-core clang libclang-rt-14-dev desktop-file-utils appstream dpkg-dev
         poppler-utils)
manquants=()
for p in "${paquets[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || manquants+=("$p")
done
if [ ${#manquants[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${manquants[@]}"
fi
