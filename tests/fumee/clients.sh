#!/usr/bin/env bash
# A client picked by letters from the editor, in the real program on the demo folder in a virtual
# X server: the client button, the keys D and U, the first row; "Valider" stores the client's
# number. Then a new client from the list, named on its card, is found by its letters at the
# next opening and attached. Every wait is on the program's state, polled up to a bound.
set -euo pipefail
if [ -z "${DANS_X:-}" ]; then
    rm -rf "$3" && mkdir -p "$3" && "$2" "$3/donnees" > /dev/null
    DANS_X=1 exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$@"
fi
set +e
AGENDA=$1 SORTIE=$3
rv=tf_r0001.wdo cli=W_CAI038.WDO
jusqua() { for _ in $(seq 1 100); do "$@" && return 0; sleep 0.1; done; return 1; }
echec() { echo "$1"; import -window root "$SORTIE/echec.png"; kill $pid; exit 1; }
par_dessus() { xdotool search --onlyvisible --class agenda 2>/dev/null | grep -vx "$livre"; }
compte() { [ "$(par_dessus | wc -l)" -eq "$1" ]; }
attend() { jusqua compte "$1"; }
# The top-left corner of a window found by its title.
coin() {
    local w
    w=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -1)
    [ -n "$w" ] || return 1
    eval "$(xdotool getwindowgeometry --shell "$w")"
    echo "$X $Y"
}
# The smallest window over the book: the prompt box.
dessus() {
    for w in $(par_dessus); do
        eval "$(xdotool getwindowgeometry --shell "$w")"
        echo "$((WIDTH * HEIGHT)) $X $Y"
    done | sort -n | head -1 | cut -d' ' -f2-
}
# A click at (x, y) twips of a window whose top-left is (ox, oy) pixels: clic OX OY X Y
clic() { xdotool mousemove $(python3 -c "print(int($1 + $3 * $e), int($2 + $4 * $e))") click 1; }
# Key i of the list's keyboard (A is 1), at the middle of its picture.
lettre() {
    local i=$(($(printf '%d' "'$3") - 64))
    local k=$((i - 1))
    clic "$1" "$2" $((11800 + k % 3 * 1100 + 500)) $((330 + k / 3 * 1100 + k % 3 * 200 + 480))
}
client_du_dernier() { python3 -c "import struct; print(struct.unpack('<i', open('$rv','rb').read()[-512 + 438:-512 + 442])[0])"; }
nom_client() { python3 -c "print(open('$cli','rb').read()[($1) * 1024 + 15:($1) * 1024 + 55].decode('cp1252').strip())"; }
dernier_client() { python3 -c "import struct; print(struct.unpack('<i', open('$cli','rb').read()[254:258])[0])"; }
taille() { stat -c %s "$1"; }
est() { [ "$($1)" = "$2" ]; }

cd "$SORTIE/donnees" || exit 1
env -u QT_QPA_PLATFORM "$AGENDA" 2> "$SORTIE/agenda.err" &
pid=$!
trouve() { livre=$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1); [ -n "$livre" ]; }
jusqua trouve || echec "aucune fenêtre Agenda"
eval "$(xdotool getwindowgeometry --shell "$livre")"
LX=$X LY=$Y e=$(python3 -c "print($WIDTH / 15360)") avant=$(taille $rv)
durand=$(python3 -c "
d = open('$cli','rb').read()
print(next(n for n in range(1, len(d) // 1024) if d[n*1024+15:n*1024+55].startswith(b'DURAND')))")
durand=$((durand))

# The demo's hours are 08:13:19, so 14 h is the second hour of the right page: 1100 + 1517.
clic $LX $LY 10100 2917
attend 1 || echec "l'éditeur ne s'est pas ouvert"
read -r EX EY < <(dessus)
clic $EX $EY 6300 4480 # Client...
jusqua coin "Liste des Clients" > /dev/null || echec "la liste ne s'est pas ouverte"
read -r CX CY < <(coin "Liste des Clients")
lettre $CX $CY D
lettre $CX $CY U
import -window root "$SORTIE/liste.png"
clic $CX $CY 5000 $((620 + 280)) # row 1
jusqua compte 1 || echec "la liste ne s'est pas fermée"
import -window root "$SORTIE/client.png"
clic $EX $EY 9150 7125 # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est "taille $rv" $((avant + 512)) || echec "le rendez-vous n'a pas été ajouté"
est client_du_dernier $durand || echec "client attendu $durand, trouvé $(client_du_dernier)"
python3 -c "import sys; sys.exit(b'DURAND Marie' not in open('$rv','rb').read()[-512:])" ||
    echec "le nom du client n'est pas le texte du rendez-vous"

# A new client from the list, named on its card.
clients_avant=$(taille $cli)
clic $LX $LY 10100 2917
attend 1 || echec "le rendez-vous ne s'est pas ouvert"
clic $EX $EY 6300 4480
jusqua coin "Liste des Clients" > /dev/null || echec "la liste ne s'est pas rouverte"
clic $CX $CY 8400 9830 # new client
attend 3 || echec "la question ne s'est pas posée"
read -r QX QY < <(dessus)
clic $QX $QY 2350 2010 # yes
jusqua coin "Fiche Client" > /dev/null || echec "la fiche ne s'est pas ouverte"
jusqua est "taille $cli" $((clients_avant + 1024)) || echec "le client n'a pas été créé"
nouveau=$(dernier_client)
xdotool type --delay 20 "ZOLA Emile"
import -window root "$SORTIE/fiche.png"
read -r FX FY < <(coin "Fiche Client")
clic $FX $FY 8800 8030 # Valider ce nom
jusqua est "nom_client $nouveau" "ZOLA Emile" || echec "la fiche n'a pas été enregistrée"
attend 1 || echec "la fiche ne s'est pas fermée"
clic $EX $EY 9150 7125
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est client_du_dernier "$nouveau" || echec "le nouveau client n'est pas attaché"

# At the next opening, Z and O find the new client.
clic $LX $LY 10100 2917
attend 1 || echec "le rendez-vous ne s'est pas rouvert"
clic $EX $EY 6300 4480
jusqua coin "Liste des Clients" > /dev/null || echec "la liste ne s'est pas rouverte"
lettre $CX $CY Z
lettre $CX $CY O
clic $CX $CY 5000 $((620 + 280))
jusqua compte 1 || echec "la liste ne s'est pas fermée"
clic $EX $EY 9150 7125
attend 0 || echec "l'éditeur ne s'est pas fermé"
est "taille $rv" $((avant + 512)) || echec "la longueur du fichier a changé"
jusqua est client_du_dernier "$nouveau" || echec "ZOLA introuvable dans la liste"

xdotool windowfocus --sync "$livre" 2>/dev/null
xdotool key Escape
fini() { ! kill -0 $pid 2>/dev/null; }
jusqua fini && wait $pid || echec "Escape n'a pas fermé Agenda, ou pas proprement"
echo "captures : $SORTIE/liste.png $SORTIE/client.png $SORTIE/fiche.png"
