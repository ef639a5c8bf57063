#!/usr/bin/env bash
# The editor from end to end on the demo folder. It opens within the first second, before the
# book raises itself, and must stay above it; then a text, a service, "Valider". On the new
# label: the client button, the keys D and U, the first row, "Valider"; a new client from the
# list, named on its card; at the next opening Z and O find it and Return takes it. Last,
# "Effacer", yes; Escape. The files are checked after each step.
. "$(dirname "$0")/commun.sh"
rv=tf_r0001.wdo cli=W_CAI038.WDO
cle() { python3 -c "print(open('$rv','rb').read()[-512:-492].decode('latin-1'))"; }
# A window's rank on the screen, from the top (as xwininfo lists them).
rang() { xwininfo -root -children | awk -v w="$(printf '0x%x' "$1")" '$1 == w { print NR }'; }
# The client list, over the editor, has the book's size and place.
liste() { clic $EX $EY 6300 4480; attend 2 || echec "pas de liste"; }
# A letter's key on the list's keyboard, at the middle of its picture, by the layout's rule.
lettre() {
    local k=$(($(printf '%d' "'$1") - 65))
    clic $LX $LY $((11800 + k % 3 * 1100 + 500)) $((330 + k / 3 * 1100 + k % 3 * 200 + 480))
}
client_du_rv() { python3 -c "import struct; print(struct.unpack('<i', open('$rv','rb').read()[-74:-70])[0])"; }
nom_client() { python3 -c "print(open('$cli','rb').read()[$1 * 1024 + 15:$1 * 1024 + 55].decode('cp1252').strip())"; }
dernier_client() { python3 -c "import struct; print(struct.unpack('<i', open('$cli','rb').read()[254:258])[0])"; }
# Opens the appointment at 14 h, the second hour of the right page (the demo's hours are
# 08:13:19): 1100 + 1517.
ouvre() { clic $LX $LY 10100 2917; attend 1 || echec "le rendez-vous ne s'est pas ouvert"; }
valide() { clic $EX $EY 9150 7125; attend 0 || echec "l'éditeur ne s'est pas fermé"; }

demarre
avant=$(taille $rv)
ouvre
editeur=$(par_dessus)
jusqua age 3 || echec "le programme ne tourne plus"
[ "$(rang "$editeur")" -lt "$(rang "$livre")" ] || echec "le livre est passé au-dessus de l'éditeur"
read -r EX EY < <(dessus)
xdotool type --delay 20 "Mme Essai"
clic $EX $EY 1400 5850 # the first service: Coupe femme, 45 minutes
valide
jusqua est "taille $rv" $((avant + 512)) || echec "le rendez-vous n'a pas été ajouté"
est cle "$(date +%y%m%d):14H00:14H45  " || echec "clé inattendue : $(cle)"
import -window root "$SORTIE/cree.png"

# A client by two letters and a row: DURAND Marie, the first after "Clients Divers".
ouvre
liste
lettre D
lettre U
clic $LX $LY 5000 900 # row 1
attend 1 || echec "la liste ne s'est pas fermée"
valide
jusqua est client_du_rv 2 || echec "client attendu 2, trouvé $(client_du_rv)"

# A new client from the list, named on its card.
clients_avant=$(taille $cli)
ouvre
liste
clic $LX $LY 8400 9830 # new client
attend 3 || echec "la question ne s'est pas posée"
read -r QX QY < <(dessus)
clic $QX $QY 2350 2010 # yes
jusqua est "taille $cli" $((clients_avant + 1024)) || echec "le client n'a pas été créé"
fiche() { xdotool search --onlyvisible --name '^Fiche Client$' > /dev/null 2>&1; }
jusqua fiche || echec "la fiche ne s'est pas ouverte"
nouveau=$(dernier_client)
xdotool type --delay 20 "ZOLA Emile"
read -r FX FY < <(dessus)
clic $FX $FY 8800 8030 # Valider ce nom
jusqua est "nom_client $nouveau" "ZOLA Emile" || echec "la fiche n'a pas été enregistrée"
attend 1 || echec "la fiche ne s'est pas fermée"
valide
jusqua est client_du_rv "$nouveau" || echec "le nouveau client n'est pas attaché"

# At the next opening, Z and O find the new client, and Return takes it.
ouvre
liste
lettre Z
lettre O
xdotool key Return
attend 1 || echec "la liste ne s'est pas fermée"
valide
jusqua est client_du_rv "$nouveau" || echec "ZOLA introuvable dans la liste"

ouvre
efface 0
jusqua est cle "----------          " || echec "pas effacé : $(cle)"
est "taille $rv" $((avant + 512)) || echec "la longueur du fichier a changé"
import -window root "$SORTIE/efface.png"

termine
echo "captures : $SORTIE/cree.png $SORTIE/efface.png"
