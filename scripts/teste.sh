#!/usr/bin/env bash
# Installs, builds with warnings as errors, runs every test, then again under AddressSanitizer
# and UndefinedBehaviorSanitizer; builds the logic alone, without Qt Widgets, and runs its tests;
# runs each fuzzer for a minute under ASan and UBSan; then prints the benchmarks: the day scan
# against a plain read, and the windows against bare ones.
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

# The fuzzers, a minute each, from the seeds laid by hand and every input a fuzzer ever found.
CC=clang CXX=clang++ cmake -S "$racine" -B "$racine/build-fuzz" -G Ninja \
      -DCMAKE_BUILD_TYPE=RelWithDebInfo -DAGENDA_FUZZ=ON -DAGENDA_SANITIZE=ON \
      -DAGENDA_WIDGETS=OFF -DAGENDA_BENCH=OFF
cibles=(formats jour param messages clients dossier sms)
cmake --build "$racine/build-fuzz" -j "$jobs" --target "${cibles[@]/#/fuzz_}"
python3 "$racine/fuzz/graines.py" "$racine/build-fuzz/graines"
for c in "${cibles[@]}"; do
    journal="$racine/build-fuzz/fuzz_$c.log"
    if ! ASAN_OPTIONS=detect_leaks=0 "$racine/build-fuzz/fuzz/fuzz_$c" -print_final_stats=1 \
            -max_total_time="${FUZZ_SECONDES:-60}" -artifact_prefix="$racine/build-fuzz/" \
            "$racine/build-fuzz/graines/$c" "$racine/fuzz/regressions/$c" > "$journal" 2>&1; then
        tail -40 "$journal"
        echo "fuzz_$c : défaut trouvé (l'entrée est dans build-fuzz/)"
        exit 1
    fi
    grep -E "^Done" "$journal" | sed "s/^/fuzz_$c : /"
done

# Ratios printed, nothing asserted: the day scan and the client list against a plain read; in
# an X server, the windows against bare Qt windows, and the whole program's start and memory
# against a bare one. The day scan runs its full time: at 0.2 s a run, the 25 µs load of a small
# file printed anything from 0.72 to 1.25 × its plain read.
"$racine/build-test/bench/agenda_bench" 2>&1 | grep -E "median|séq"
"$racine/build-test/bench/agenda_bench_clients" 2>&1 | grep -E "median|séq"
"$racine/build-test/bench/agenda_bench_semaine" 2>&1 | grep -E "median|séq"
"$racine/build-test/bench/agenda_bench_collaborateurs" 2>&1 | grep -E "median|séq|peinture"
for banc in agenda_bench_fenetres agenda_bench_demarrage; do
    # On the X server, not offscreen: there a bare window costs nothing and the ratios mean little.
    # -noreset: the programs started one after another find the server as the last one left it.
    env -u QT_QPA_PLATFORM xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" \
        "$racine/build-test/bench/$banc" 2>&1 |
        grep -E "median|×" || echo "($banc n'a pas tourné)"
done
