#!/usr/bin/env bash
# The real agenda on folders it cannot use: it must end with status 1 and a French message
# that names the file or the setting, never by a signal.
set -uo pipefail
agenda=$1
sortie=$2
rm -rf "$sortie"
echec=0

essaie() { # name, expected words in the message
    local dossier=$sortie/$1
    ( cd "$dossier" && QT_QPA_PLATFORM=offscreen timeout 20 "$agenda" ) 2> "$dossier.err"
    local rc=$?
    if [ $rc -ne 1 ]; then echo "$1 : statut $rc au lieu de 1"; echec=1; fi
    if ! grep -q "$2" "$dossier.err"; then echo "$1 : message sans « $2 »"; cat "$dossier.err"; echec=1; fi
}

mkdir -p "$sortie/sans_liste" "$sortie/vingt_et_une" "$sortie/heures" "$sortie/apres_midi" \
         "$sortie/dossier"
essaie sans_liste "lien_agenda.txt"

for i in $(seq 1 21); do printf '01 : Nom\r\n'; done > "$sortie/vingt_et_une/lien_agenda.txt"
essaie vingt_et_une "20 collaborateurs"

printf '01 : Nom\r\n' > "$sortie/heures/lien_agenda.txt"
# A parameter store whose one key is these hours: store FILE HOURS
store() {
    python3 - "$1" "$2" <<'FIN'
import struct, sys
def rec(valeur, nb, cle):
    return valeur.ljust(106).encode() + struct.pack('<iii', 0, nb, 0) + cle.ljust(25).encode() + b' '
open(sys.argv[1], 'wb').write(rec('', 1, '') + rec(sys.argv[2], 0, 'TORVA:HEURE'))
FIN
}
store "$sortie/heures/WTORV_IA.WDO" '12:12:19:020'
essaie heures "page du matin"
printf '01 : Nom\r\n' > "$sortie/apres_midi/lien_agenda.txt"
store "$sortie/apres_midi/WTORV_IA.WDO" '07:19:19:020'
essaie apres_midi "page de l'après-midi"

# A folder where the book's file should be.
printf '01 : Nom\r\n' > "$sortie/dossier/lien_agenda.txt"
mkdir "$sortie/dossier/tf_r0000.wdo"
essaie dossier "tf_r0000.wdo (ouverture) : c'est un dossier"

exit $echec
