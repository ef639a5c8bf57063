#!/usr/bin/env bash
# The real agenda on folders it cannot use: it must end with status 1 and a French message that
# names the file or the setting, never by a signal.
set -uo pipefail
agenda=$1 sortie=$2 echec=0
rm -rf "$sortie"

# essaie NAME WORDS [VAR=VALUE...]: runs the program in the folder NAME, prepared just before.
essaie() {
    (cd "$sortie/$1" && env QT_QPA_PLATFORM=offscreen "${@:3}" timeout 20 "$agenda") 2> "$sortie/$1.err"
    local rc=$?
    [ $rc -eq 1 ] || { echo "$1 : statut $rc au lieu de 1"; echec=1; }
    grep -q "$2" "$sortie/$1.err" || { echo "$1 : message sans « $2 »"; cat "$sortie/$1.err"; echec=1; }
}
dossier() { mkdir -p "$sortie/$1" && [ -z "$2" ] || printf '01 : Nom\r\n' > "$sortie/$1/lien_agenda.txt"; }

dossier sans_liste ""
essaie sans_liste "lien_agenda.txt"

# A parameter store whose one key puts the rupture on the first hour: an end no trap takes.
dossier heures 1
python3 - "$sortie/heures/WTORV_IA.WDO" <<'FIN'
import struct, sys
rec = lambda valeur, nb, cle: valeur.ljust(106).encode() + struct.pack('<iii', 0, nb, 0) + cle.ljust(26).encode()
open(sys.argv[1], 'wb').write(rec('', 1, '') + rec('12:12:19:020', 0, 'TORVA:HEURE'))
FIN
essaie heures "page du matin"

dossier dossier 1
mkdir "$sortie/dossier/tf_r0000.wdo"
essaie dossier "tf_r0000.wdo (ouverture) : c'est un dossier"

# No screen to open on: the toolkit would abort.
dossier sans_ecran 1
essaie sans_ecran "l'écran est inaccessible (DISPLAY=:65000)" QT_QPA_PLATFORM=xcb DISPLAY=:65000
exit $echec
