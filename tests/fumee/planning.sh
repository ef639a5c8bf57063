#!/usr/bin/env bash
# The planning from end to end on the demo folder: tab 3 shows it; "Transfert", a click on the
# first appointment of the first collaborator today, a click at 16 h in the second's column; the
# editor opens on the moved appointment and "Valider" saves it there. Then a click on a free place
# of that column makes its collaborator the book's own. The files are checked after each step.
. "$(dirname "$0")/commun.sh"
jour=$(date +%y%m%d)
cle() { python3 -c "print(open('$1','rb').read()[$2 * 512:$2 * 512 + 20].decode('latin-1'))"; }
derniere_cle() { python3 -c "print(open('$1','rb').read()[-512:-492].decode('latin-1'))"; }
numuser() { python3 -c "
b = open('W_intlog.wdo', 'rb').read()
print(next(b[i + 23:i + 63].decode('cp1252').strip() for i in range(0, len(b), 128)
           if b[i:i + 15].startswith(b'TORVA:NUMUSER')))"; }

demarre
# The first appointment of collaborator 1 today: its number, and the middle of its box in twips
# of the planning's window (hours 08 to 19: 727 twips an hour; four columns of 3750; the
# surface 130 twips in). Minutes count by text, as the planning places them.
read -r num X_RV Y_RV < <(python3 - "$jour" <<'PY'
import sys
b = open('tf_r0001.wdo', 'rb').read()
for n in range(1, len(b) // 512):
    cle = b[n * 512:n * 512 + 20].decode('latin-1')
    if cle.startswith(sys.argv[1]):
        h = lambda t: float(t[:2] + '.' + str(int(int(t[3:5]) * 1.66666 + 0.5)))
        print(n, 130 + 1000, int(1000 + 727 * ((h(cle[7:12]) + h(cle[13:18])) / 2 - 8)))
        break
PY
)
rv2=$(taille tf_r0002.wdo)
clic $LX $LY 15030 5875 # the right tab 3
attend 1 || echec "le planning ne s'est pas ouvert"
read -r PX PY < <(dessus)
jusqua age 2
import -window root "$SORTIE/planning.png"
clic $PX $PY 8350 9900 # Transfert du rendez-vous...
clic $PX $PY $X_RV $Y_RV
clic $PX $PY $((130 + 5625)) $((1000 + 727 * 8 + 300)) # column 2, at 16 h
attend 2 || echec "l'éditeur ne s'est pas ouvert sur le rendez-vous déplacé"
read -r EX EY < <(dessus)
clic $EX $EY 9150 7125 # Valider le rendez-vous
attend 1 || echec "l'éditeur ne s'est pas fermé"
est "cle tf_r0001.wdo $num" "                    " || echec "l'ancien n'est pas vidé : $(cle tf_r0001.wdo "$num")"
est "taille tf_r0002.wdo" $((rv2 + 512)) || echec "pas de nouveau rendez-vous chez le collaborateur 2"
[[ "$(derniere_cle tf_r0002.wdo)" == "$jour:16H"* ]] || echec "clé inattendue : $(derniere_cle tf_r0002.wdo)"
import -window root "$SORTIE/deplace.png"

# A free place of column 2, at 14 h: its collaborator becomes the book's own.
clic $PX $PY $((130 + 5625)) $((1000 + 727 * 6 + 300))
attend 0 || echec "le planning ne s'est pas fermé"
est numuser "0002 Julien Bernard" || echec "collaborateur non enregistré : $(numuser)"
titre() { xdotool search --onlyvisible --name '^Agenda — Julien Bernard$' > /dev/null 2>&1; }
jusqua titre || echec "le livre n'est pas passé au collaborateur 2"
import -window root "$SORTIE/livre2.png"

termine
echo "captures : $SORTIE/planning.png $SORTIE/deplace.png $SORTIE/livre2.png"
