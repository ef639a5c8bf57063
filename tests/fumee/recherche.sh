#!/usr/bin/env bash
# The search from end to end on the demo folder: tab 4, a client's name typed, Enter; a double
# click on the first row opens that appointment (the first in date order over the four
# collaborators), and "Effacer le rendez-vous" voids that very record.
. "$(dirname "$0")/commun.sh"
demarre
# The first result: by key, then collaborator, then number; its file and number.
read -r fichier num < <(python3 - <<'PY'
rs = []
for c in range(1, 5):
    b = open('tf_r%04d.wdo' % c, 'rb').read()
    for n in range(1, len(b) // 512):
        r = b[n * 512:(n + 1) * 512]
        if r[:6] != b'------' and r[:6] >= b'000000' and b'durand' in r[20:422].lower():
            rs.append((r[:13], c, n))
_, c, n = min(rs)
print('tf_r%04d.wdo' % c, n)
PY
)
cle() { python3 -c "print(open('$fichier','rb').read()[$num * 512:$num * 512 + 10].decode('latin-1'))"; }
clic $LX $LY 15030 7425 # the right tab 4
attend 1 || echec "la recherche ne s'est pas ouverte"
jusqua age 2
xdotool type --delay 20 "Durand"
xdotool key Return
# The search opens every collaborator's file up to 20, making the missing ones.
existe() { [ -e tf_r0020.wdo ]; }
jusqua existe || echec "la recherche n'a pas tourné"
clic $LX $LY 6100 2290 && xdotool click 1 # a double click on the first row
attend 2 || echec "le rendez-vous ne s'est pas ouvert"
efface 1
jusqua est cle "----------" || echec "ce n'est pas le premier rendez-vous qui a été ouvert : $(cle)"
import -window root "$SORTIE/recherche.png"
clic $LX $LY 14180 10350 # Fermer
attend 0 || echec "la recherche ne s'est pas fermée"
termine
echo "capture : $SORTIE/recherche.png"
