#!/usr/bin/env bash
# The book from end to end in a real X server, as an operator works it on the demo folder: a
# click at 14 h on the right page, a text, a service, "Valider le rendez-vous"; then a click on
# the new label, "Effacer le rendez-vous", yes. The file is checked after each step.
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
source "$ici/commun.sh"
export AGENDA=$1 SORTIE=$3 COMMUN=$ici/commun.sh
prepare "$SORTIE" "$2"

cat > "$SORTIE/session.sh" <<'FIN'
#!/usr/bin/env bash
set -uo pipefail
source "$COMMUN"
lance
eval "$(xdotool getwindowgeometry --shell "$livre")"
LX=$X LY=$Y
echelle=$(python3 -c "print($WIDTH / 15360)")
# A click at (x, y) twips of a window whose top-left is (ox, oy) pixels.
clic() {
    xdotool mousemove $(python3 -c "print(int($1 + $3 * $echelle), int($2 + $4 * $echelle))") click 1
    sleep 0.8
}
# The window on top: the smallest visible one that is not the book.
dessus() {
    local meilleur="" aire=999999999 w
    for w in $(xdotool search --onlyvisible --class agenda); do
        [ "$w" = "$livre" ] && continue
        eval "$(xdotool getwindowgeometry --shell "$w")"
        if [ $((WIDTH * HEIGHT)) -lt $aire ]; then aire=$((WIDTH * HEIGHT)); meilleur="$X $Y"; fi
    done
    echo "$meilleur"
}
# Waits until so many windows stand over the book (ten seconds at most).
attend() {
    local n w
    for _ in $(seq 1 100); do
        n=0
        for w in $(xdotool search --onlyvisible --class agenda 2>/dev/null); do
            [ "$w" = "$livre" ] || n=$((n + 1))
        done
        [ $n -eq "$1" ] && { sleep 0.3; return 0; }
        sleep 0.1
    done
    return 1
}
echec() { echo "$1"; import -window root "$SORTIE/echec.png"; kill $pid; exit 1; }
rv=tf_r0001.wdo
cle() { python3 -c "import sys; d=open('$rv','rb').read(); print(d[-512:-492].decode('latin-1'))"; }
jour=$(date +%y%m%d)
avant=$(stat -c %s $rv)

# The demo's hours are 08:13:19, so 14 h is the second hour of the right page: 1100 + 1517.
clic $LX $LY 10100 2917
attend 1 || echec "l'éditeur ne s'est pas ouvert"
read -r EX EY < <(dessus)
xdotool type --delay 30 "Mme Essai"
sleep 0.3
clic $EX $EY 1400 5850          # the first service: Coupe femme, 45 minutes
clic $EX $EY 9150 7125          # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
import -window root "$SORTIE/cree.png"
[ "$(stat -c %s $rv)" -eq $((avant + 512)) ] || echec "le rendez-vous n'a pas été ajouté"
[ "$(cle)" = "$jour:14H00:14H45  " ] || echec "clé inattendue : $(cle)"

clic $LX $LY 10100 2917         # on the new label
attend 1 || echec "le rendez-vous ne s'est pas ouvert"
read -r EX EY < <(dessus)
clic $EX $EY 12450 7125         # Effacer le rendez-vous
attend 2 || echec "la question ne s'est pas posée"
read -r QX QY < <(dessus)
clic $QX $QY 2350 2010          # yes
attend 0 || echec "l'éditeur ne s'est pas fermé"
import -window root "$SORTIE/efface.png"
[ "$(stat -c %s $rv)" -eq $((avant + 512)) ] || echec "la longueur du fichier a changé"
[ "$(cle)" = "----------          " ] || echec "pas effacé : $(cle)"

termine_par_echap
FIN
chmod +x "$SORTIE/session.sh"
xvfb-run -a -s "-screen 0 1280x1024x24" "$SORTIE/session.sh"
echo "captures : $SORTIE/cree.png $SORTIE/efface.png"
