# Shared by the runs of the real agenda in a virtual X server. Sourced, not run.

# A fresh output folder holding a demo data folder: prepare OUTPUT DEMO_GENERATOR
prepare() {
    rm -rf "$1"
    mkdir -p "$1"
    "$2" "$1/donnees" >/dev/null
}

# Starts AGENDA in the demo folder of SORTIE and waits for its book; sets pid and livre.
lance() {
    cd "$SORTIE/donnees" || exit 1
    env -u QT_QPA_PLATFORM "$AGENDA" 2> "$SORTIE/agenda.err" &
    pid=$!
    livre=""
    for _ in $(seq 1 50); do
        livre=$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1 || true)
        [ -n "$livre" ] && break
        sleep 0.2
    done
    [ -n "$livre" ] || { echo "aucune fenêtre Agenda"; kill $pid; exit 1; }
    sleep 1
}

# Escape on the book, as an operator ends the program: it must end by itself, cleanly.
termine_par_echap() {
    xdotool windowfocus --sync "$livre" 2>/dev/null || true
    xdotool key Escape
    for _ in $(seq 1 50); do
        kill -0 $pid 2>/dev/null || break
        sleep 0.1
    done
    if kill -0 $pid 2>/dev/null; then echo "Escape n'a pas fermé Agenda"; kill $pid; exit 1; fi
    wait $pid
}
