# Shared by the runs of the real agenda in a virtual X server. Sourced, not run. Every wait is
# on the program's state (a window mapped, a file's length, the program's own age), polled
# every tenth of a second up to a bound: never a fixed sleep.

# A fresh output folder holding a demo data folder: prepare OUTPUT DEMO_GENERATOR
prepare() {
    rm -rf "$1"
    mkdir -p "$1"
    "$2" "$1/donnees" >/dev/null
}

# Polls a condition (a command) up to ten seconds.
jusqua() {
    for _ in $(seq 1 100); do
        "$@" && return 0
        sleep 0.1
    done
    return 1
}

# Starts AGENDA in the demo folder of SORTIE and waits for its book; sets pid and livre.
lance() {
    cd "$SORTIE/donnees" || exit 1
    env -u QT_QPA_PLATFORM "$AGENDA" 2> "$SORTIE/agenda.err" &
    pid=$!
    livre=""
    trouve_livre() {
        livre=$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1 || true)
        [ -n "$livre" ]
    }
    jusqua trouve_livre || { echo "aucune fenêtre Agenda"; kill $pid; exit 1; }
    eval "$(xdotool getwindowgeometry --shell "$livre")"
    LX=$X LY=$Y
    echelle=$(python3 -c "print($WIDTH / 15360)")
}

# The visible windows of the program other than the book.
par_dessus() {
    local w
    for w in $(xdotool search --onlyvisible --class agenda 2>/dev/null); do
        [ "$w" = "$livre" ] || echo "$w"
    done
}
compte_par_dessus() { [ "$(par_dessus | wc -l)" -eq "$1" ]; }
# Waits until so many windows stand over the book.
attend() { jusqua compte_par_dessus "$1"; }

# The top-left corner of the smallest window over the book: the last one opened.
dessus() {
    local meilleur="" aire=999999999 w
    for w in $(par_dessus); do
        eval "$(xdotool getwindowgeometry --shell "$w")"
        if [ $((WIDTH * HEIGHT)) -lt $aire ]; then aire=$((WIDTH * HEIGHT)); meilleur="$X $Y"; fi
    done
    echo "$meilleur"
}

# A click at (x, y) twips of a window whose top-left is (ox, oy) pixels: clic OX OY X Y
clic() {
    xdotool mousemove $(python3 -c "print(int($1 + $3 * $echelle), int($2 + $4 * $echelle))") click 1
}

taille_est() { [ "$(stat -c %s "$1")" -eq "$2" ]; }
# Waits until a file has this length.
attend_taille() { jusqua taille_est "$1" "$2"; }

age_atteint() { [ "$(ps -o etimes= -p "$pid" | tr -d ' ')" -ge "$1" ]; }
# Waits until the program has run so many seconds, by its own clock.
attend_age() { jusqua age_atteint "$1"; }

# Whether window $1 stands above window $2 among the screen's windows (xwininfo lists them
# from the top down).
au_dessus() {
    local a b
    a=$(xwininfo -root -children | awk -v w="$(printf '0x%x' "$1")" '$1 == w { print NR }')
    b=$(xwininfo -root -children | awk -v w="$(printf '0x%x' "$2")" '$1 == w { print NR }')
    [ -n "$a" ] && [ -n "$b" ] && [ "$a" -lt "$b" ]
}

# Escape on the book, as an operator ends the program: it must end by itself, cleanly.
termine_par_echap() {
    xdotool windowfocus --sync "$livre" 2>/dev/null || true
    xdotool key Escape
    fini() { ! kill -0 $pid 2>/dev/null; }
    if ! jusqua fini; then echo "Escape n'a pas fermé Agenda"; kill $pid; exit 1; fi
    wait $pid
}
