#!/usr/bin/env bash
# The settings from end to end on the demo folder, a touch-screen workstation: the cog at the foot
# of the right page; closing hour 20 h and a standard of 45 minutes; "Retour à l'agenda". Then a
# tap at 14 h by the new ruling of the right page opens the editor, a tap on its text opens the
# on-screen keyboard, "Essai" is tapped and confirmed, and the appointment is saved: 14 h to 14 h 45.
. "$(dirname "$0")/commun.sh"
python3 -c "f = open('$SORTIE/donnees/w_cai020.wdo', 'r+b'); f.seek(41 * 20); f.write(b'1'.ljust(20))"
demarre
rv=tf_r0001.wdo
enregistre() { grep -q "08:13:20:45" WTORV_IA.WDO; }
dernier() { python3 -c "r = open('$rv','rb').read()[-512:]; print(r[:18].decode('latin-1') + r[20:25].decode('latin-1'))"; }
jusqua age 2
clic $LX $LY 9150 10550 # the cog
attend 1 || echec "le paramétrage ne s'est pas ouvert"
clic $LX $LY 4500 2210 && xdotool type --delay 50 "20" && xdotool key Return # Heure de fermeture
clic $LX $LY 4300 2710 && xdotool key ctrl+a && xdotool type --delay 20 "45"
import -window root "$SORTIE/reglages.png"
clic $LX $LY 13550 10525 # Retour à l'agenda
attend 0 || echec "le paramétrage ne s'est pas fermé"
jusqua enregistre || echec "les heures n'ont pas été enregistrées"
# 13 h to 20 h over the right page: 1300 twips an hour.
clic $LX $LY 10100 $((1100 + 1300 + 100))
attend 1 || echec "l'éditeur ne s'est pas ouvert"
read -r EX EY < <(dessus)
clic $EX $EY 3000 2000 # the text: the keyboard
attend 2 || echec "le clavier ne s'est pas ouvert"
read -r KX KY < <(dessus)
# Shift and e, s, s, a, i, then Valider, at the middle of each key (keyboard at 480, 2250).
for k in "1267 5887" "4357 3877" "3547 4897" "3547 4897" "2377 3877" "9307 3877" "13657 4372"; do
    clic $KX $KY $k
done
attend 1 || echec "le clavier ne s'est pas fermé"
clic $EX $EY 9150 7125 # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est dernier "$(date +%y%m%d):14H00:14H45Essai" || echec "rendez-vous inattendu : $(dernier)"
import -window root "$SORTIE/livre.png"
termine
echo "captures : $SORTIE/reglages.png $SORTIE/livre.png"
