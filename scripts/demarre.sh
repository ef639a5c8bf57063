#!/usr/bin/env bash
# Installs, builds, makes the demo data folder when it is absent, and starts Agenda in it.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
bash "$racine/scripts/installe.sh"
cmake -S "$racine" -B "$racine/build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DAGENDA_BENCH=OFF
cmake --build "$racine/build" --target agenda agenda_demo
if [ ! -d "$racine/demo" ]; then
    "$racine/build/tools/agenda_demo" "$racine/demo"
fi
cd "$racine/demo"
exec "$racine/build/app/agenda"
