#!/usr/bin/env bash
# Installs, builds with warnings as errors, runs every test, then again under AddressSanitizer
# and UndefinedBehaviorSanitizer; builds the logic alone, without Qt Widgets, and runs its tests;
# then prints the scan benchmark's ratio.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
bash "$racine/scripts/installe.sh"
export QT_QPA_PLATFORM=offscreen
jobs=$(nproc)

cmake -S "$racine" -B "$racine/build-test" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DAGENDA_WERROR=ON
cmake --build "$racine/build-test" -j "$jobs"
(cd "$racine/build-test" && ctest --output-on-failure -j "$jobs")

cmake -S "$racine" -B "$racine/build-asan" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DAGENDA_WERROR=ON \
      -DAGENDA_SANITIZE=ON -DAGENDA_BENCH=OFF
cmake --build "$racine/build-asan" -j "$jobs"
(cd "$racine/build-asan" && ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --output-on-failure -j "$jobs")

# The logic stands without Qt Widgets: built and tested with no widget library in reach.
cmake -S "$racine" -B "$racine/build-logique" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DAGENDA_WERROR=ON -DAGENDA_WIDGETS=OFF -DAGENDA_BENCH=OFF
cmake --build "$racine/build-logique" -j "$jobs"
(cd "$racine/build-logique" && ctest --output-on-failure -j "$jobs")

"$racine/build-test/bench/agenda_bench" --benchmark_min_time=0.2
