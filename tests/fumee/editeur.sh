#!/usr/bin/env bash
# The real program from end to end in a virtual X server, as an operator works the demo folder.
# The editor opens within the first second, before the book raises itself, and must stay above
# it; then a text, a service, "Valider"; a click on the new label, "Effacer", yes; Escape. The
# file is checked after each step. Every wait is on the program's state (windows mapped, a
# file's length, the program's own age), polled up to a bound: never a fixed sleep.
set -euo pipefail
if [ -z "${DANS_X:-}" ]; then
    rm -rf "$3" && mkdir -p "$3" && "$2" "$3/donnees" > /dev/null
    DANS_X=1 exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$@"
fi
set +e
AGENDA=$1 SORTIE=$3
rv=tf_r0001.wdo
jusqua() { for _ in $(seq 1 100); do "$@" && return 0; sleep 0.1; done; return 1; }
echec() { echo "$1"; import -window root "$SORTIE/echec.png"; kill $pid; exit 1; }
# The program's windows other than the book; waits until there are so many.
par_dessus() { xdotool search --onlyvisible --class agenda 2>/dev/null | grep -vx "$livre"; }
compte() { [ "$(par_dessus | wc -l)" -eq "$1" ]; }
attend() { jusqua compte "$1"; }
# The top-left corner of the smallest window over the book: the last one opened.
dessus() {
    for w in $(par_dessus); do
        eval "$(xdotool getwindowgeometry --shell "$w")"
        echo "$((WIDTH * HEIGHT)) $X $Y"
    done | sort -n | head -1 | cut -d' ' -f2-
}
# A click at (x, y) twips of a window whose top-left is (ox, oy) pixels: clic OX OY X Y
clic() { xdotool mousemove $(python3 -c "print(int($1 + $3 * $e), int($2 + $4 * $e))") click 1; }
cle() { python3 -c "print(open('$rv','rb').read()[-512:-492].decode('latin-1'))"; }
taille() { stat -c %s $rv; }
est() { [ "$($1)" = "$2" ]; }
# A window's rank on the screen, from the top (as xwininfo lists them); the program's age.
rang() { xwininfo -root -children | awk -v w="$(printf '0x%x' "$1")" '$1 == w { print NR }'; }
age() { [ "$(ps -o etimes= -p "$pid" | tr -d ' ')" -ge "$1" ]; }

cd "$SORTIE/donnees" || exit 1
env -u QT_QPA_PLATFORM "$AGENDA" 2> "$SORTIE/agenda.err" &
pid=$!
trouve() { livre=$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1); [ -n "$livre" ]; }
jusqua trouve || echec "aucune fenêtre Agenda"
eval "$(xdotool getwindowgeometry --shell "$livre")"
LX=$X LY=$Y e=$(python3 -c "print($WIDTH / 15360)") avant=$(taille)

# The demo's hours are 08:13:19, so 14 h is the second hour of the right page: 1100 + 1517.
clic $LX $LY 10100 2917
attend 1 || echec "l'éditeur ne s'est pas ouvert"
editeur=$(par_dessus)
jusqua age 3 || echec "le programme ne tourne plus"
[ "$(rang "$editeur")" -lt "$(rang "$livre")" ] || echec "le livre est passé au-dessus de l'éditeur"
read -r EX EY < <(dessus)
xdotool type --delay 20 "Mme Essai"
clic $EX $EY 1400 5850 # the first service: Coupe femme, 45 minutes
clic $EX $EY 9150 7125 # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est taille $((avant + 512)) || echec "le rendez-vous n'a pas été ajouté"
est cle "$(date +%y%m%d):14H00:14H45  " || echec "clé inattendue : $(cle)"
import -window root "$SORTIE/cree.png"

clic $LX $LY 10100 2917 # on the new label
attend 1 || echec "le rendez-vous ne s'est pas ouvert"
read -r EX EY < <(dessus)
clic $EX $EY 12450 7125 # Effacer le rendez-vous
attend 2 || echec "la question ne s'est pas posée"
read -r QX QY < <(dessus)
clic $QX $QY 2350 2010 # yes
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est cle "----------          " || echec "pas effacé : $(cle)"
est taille $((avant + 512)) || echec "la longueur du fichier a changé"
import -window root "$SORTIE/efface.png"

# Escape on the book ends the program by itself, cleanly.
xdotool windowfocus --sync "$livre" 2>/dev/null
xdotool key Escape
fini() { ! kill -0 $pid 2>/dev/null; }
jusqua fini && wait $pid || echec "Escape n'a pas fermé Agenda, ou pas proprement"
echo "captures : $SORTIE/cree.png $SORTIE/efface.png"
