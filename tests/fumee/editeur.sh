#!/usr/bin/env bash
# The book from end to end in a real X server, as an operator works it on the demo folder. The
# editor is opened within the first second, before the book raises itself: it must stay above
# the book. Then a text, a service, "Valider le rendez-vous"; a click on the new label,
# "Effacer le rendez-vous", yes. The file is checked after each step.
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
source "$ici/commun.sh"
export AGENDA=$1 SORTIE=$3 COMMUN=$ici/commun.sh
prepare "$SORTIE" "$2"

cat > "$SORTIE/session.sh" <<'FIN'
#!/usr/bin/env bash
set -uo pipefail
source "$COMMUN"
echec() { echo "$1"; import -window root "$SORTIE/echec.png"; kill $pid; exit 1; }
rv=tf_r0001.wdo
cle() { python3 -c "import sys; d=open('$rv','rb').read(); print(d[-512:-492].decode('latin-1'))"; }
jour=$(date +%y%m%d)

lance
avant=$(stat -c %s $rv)
# The demo's hours are 08:13:19, so 14 h is the second hour of the right page: 1100 + 1517.
clic $LX $LY 10100 2917
attend 1 || echec "l'éditeur ne s'est pas ouvert"
[ "$(ps -o etimes= -p "$pid" | tr -d ' ')" -lt 2 ] || echo "(l'éditeur s'est ouvert après le lever du livre)"
editeur=$(par_dessus)
attend_age 3 || echec "le programme ne tourne plus"
au_dessus "$editeur" "$livre" || echec "le livre est passé au-dessus de l'éditeur"
read -r EX EY < <(dessus)
xdotool type --delay 20 "Mme Essai"
clic $EX $EY 1400 5850          # the first service: Coupe femme, 45 minutes
clic $EX $EY 9150 7125          # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
attend_taille $rv $((avant + 512)) || echec "le rendez-vous n'a pas été ajouté"
[ "$(cle)" = "$jour:14H00:14H45  " ] || echec "clé inattendue : $(cle)"
import -window root "$SORTIE/cree.png"

clic $LX $LY 10100 2917         # on the new label
attend 1 || echec "le rendez-vous ne s'est pas ouvert"
read -r EX EY < <(dessus)
clic $EX $EY 12450 7125         # Effacer le rendez-vous
attend 2 || echec "la question ne s'est pas posée"
read -r QX QY < <(dessus)
clic $QX $QY 2350 2010          # yes
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua test "$(cle)" = "----------          " || echec "pas effacé : $(cle)"
taille_est $rv $((avant + 512)) || echec "la longueur du fichier a changé"
import -window root "$SORTIE/efface.png"

termine_par_echap
FIN
chmod +x "$SORTIE/session.sh"
xvfb-run -a -s "-screen 0 1280x1024x24" "$SORTIE/session.sh"
echo "captures : $SORTIE/cree.png $SORTIE/efface.png"
