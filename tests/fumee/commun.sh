# Sourced by each run of the real program, called as SCENARIO AGENDA DEMO OUTPUT: the demo folder
# made, the run moved into a virtual X server. Every wait is on the program's state (windows
# mapped, a file's length, the program's age), polled up to a bound: never a fixed sleep.
set -euo pipefail
if [ -z "${DANS_X:-}" ]; then
    rm -rf "$3" && mkdir -p "$3" && "$2" "$3/donnees" > /dev/null
    # -noreset: when its last client leaves, the server stays as it is; resetting, it refused the
    # connection of the program started again at that moment (about one start in a hundred).
    DANS_X=1 exec xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$0" "$@"
fi
set +e
AGENDA=$1 SORTIE=$3
jusqua() { for _ in $(seq 1 100); do "$@" && return 0; sleep 0.1; done; return 1; }
# The failure, what the program printed, and the screen.
echec() {
    echo "$1" && sed 's/^/agenda: /' "$SORTIE/agenda.err" && import -window root "$SORTIE/echec.png"
    kill $pid 2> /dev/null; exit 1; }
# The program's windows other than the book; waits until there are so many.
par_dessus() { xdotool search --onlyvisible --class agenda 2>/dev/null | grep -vx "$livre"; }
compte() { [ "$(par_dessus | wc -l)" -eq "$1" ]; }
attend() { jusqua compte "$1"; }
# The top-left corner of the smallest window over the book: the last small one opened.
dessus() {
    for w in $(par_dessus); do
        eval "$(xdotool getwindowgeometry --shell "$w")"
        echo "$((WIDTH * HEIGHT)) $X $Y"
    done | sort -n | head -1 | cut -d' ' -f2-
}
# A click at (x, y) twips of a window whose top-left is (ox, oy) pixels: clic OX OY X Y
clic() { xdotool mousemove $(python3 -c "print(int($1 + $3 * $e), int($2 + $4 * $e))") click 1; }
taille() { stat -c %s "$1"; }
est() { [ "$($1)" = "$2" ]; }
age() { [ "$(ps -o etimes= -p "$pid" | tr -d ' ')" -ge "$1" ]; }

# Agenda in the demo folder; its book's window is `livre`, at (LX, LY), `e` pixels a twip.
demarre() {
    cd "$SORTIE/donnees" || exit 1
    env -u QT_QPA_PLATFORM "$AGENDA" 2> "$SORTIE/agenda.err" &
    pid=$!
    # Found, or ended: a program that ended is told at once, with its status.
    trouve() {
        livre=$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1)
        [ -n "$livre" ] || ! kill -0 $pid 2> /dev/null; }
    jusqua trouve || echec "aucune fenêtre Agenda"
    [ -n "$livre" ] || { wait $pid; echec "Agenda s'est arrêté (statut $?) sans fenêtre"; }
    eval "$(xdotool getwindowgeometry --shell "$livre")"
    LX=$X LY=$Y e=$(python3 -c "print($WIDTH / 15360)")
}

# Escape on the book ends the program by itself, cleanly.
termine() {
    xdotool windowfocus --sync "$livre" 2>/dev/null
    xdotool key Escape
    fini() { ! kill -0 $pid 2>/dev/null; }
    jusqua fini && wait $pid || echec "Escape n'a pas fermé Agenda, ou pas proprement"
}

# "Effacer le rendez-vous" in the editor on top, and yes; $1 windows stay under it.
efface() {
    read -r EX EY < <(dessus)
    clic $EX $EY 12450 7125
    attend $(($1 + 2)) || echec "la question ne s'est pas posée"
    read -r QX QY < <(dessus)
    clic $QX $QY 2350 2010
    attend "$1" || echec "l'éditeur ne s'est pas fermé"
}
