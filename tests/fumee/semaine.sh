#!/usr/bin/env bash
# The week and the year from end to end on the demo folder: tab "Semaine", a click in the week's
# note, a text and a background from the palette, the note's button; the note file holds it.
# After a restart the week shows the note in its colour. Then tab "Année", a click on 14 July of
# this year opens that day: an appointment written at 14 h lands on 14 July.
. "$(dirname "$0")/commun.sh"
notes=tf_a0001.wdo rv=tf_r0001.wdo
lundi=$(date -d "$(date +%F) -$(( ($(date +%u) + 6) % 7 )) days" +%y%m%d)
note() { python3 -c "r = open('$notes','rb').read()[512:1024]; print(r[:9].decode() + r[20:36].decode())"; }
cle() { python3 -c "print(open('$rv','rb').read()[-512:-499].decode('latin-1'))"; }
# The colour of the screen at (x, y) twips of the book, as #rrggbb.
couleur() {
    import -window root -crop "1x1+$(python3 -c "print(int($LX + $1 * $e))")+$(python3 -c "print(int($LY + $2 * $e))")" \
        -depth 8 txt:- 2>/dev/null | grep -o '#[0-9A-F]\{6\}' | head -1
}
semaine() { clic $LX $LY 15030 2775; } # the right edge's tab 1
# The week's note, on the right page (8100) at 420, 8550.
dans_la_note() { clic $LX $LY $((8100 + 420 + 2500)) $((8550 + 1500)); }

demarre
jusqua age 2
semaine
dans_la_note
attend 1 || echec "la note ne s'est pas ouverte"
read -r NX NY < <(dessus)
clic $NX $NY 1000 800
xdotool type --delay 20 "Inventaire lundi"
clic $NX $NY 300 2710 # "Fond": the first swatch, #ffc0c0
import -window root "$SORTIE/note.png"
clic $NX $NY 2500 3340 # the note's button
attend 0 || echec "la note ne s'est pas fermée"
jusqua est note "SE:${lundi}Inventaire lundi" || echec "note inattendue : $(note)"
termine

demarre
jusqua age 2
semaine
colore() { [ "$(couleur $((8100 + 420 + 5000)) $((8550 + 1900)))" = "#FFC0C0" ]; }
jusqua colore || echec "la note n'a pas sa couleur après le redémarrage : $(couleur $((8100 + 5420)) 10450)"
import -window root "$SORTIE/semaine.png"

# The year sheet lies at 600 on the book; July is the third month of the second row.
clic $LX $LY 15030 4325 # tab 2
read -r ligne colonne < <(python3 -c "
import datetime
j = datetime.date(datetime.date.today().year, 7, 1)
l, c = j.weekday(), 1
while j.day != 14:
    j += datetime.timedelta(1); l += 1
    if l > 6: l, c = 0, c + 1
print(l, c)")
import -window root "$SORTIE/annee.png"
clic $LX $LY $((600 + 400 + 2 * 3400 + 1075 + (colonne - 1) * 330 + 165)) $((1800 + 3000 + ligne * 300 + 150))
clic $LX $LY 10100 2917 # 14 h on the day's right page (hours 08:13:19)
attend 1 || echec "l'éditeur ne s'est pas ouvert sur le jour choisi"
read -r EX EY < <(dessus)
xdotool type --delay 20 "Juillet"
clic $EX $EY 9150 7125 # Valider le rendez-vous
attend 0 || echec "l'éditeur ne s'est pas fermé"
jusqua est cle "$(date +%y)0714:14H00:" || echec "rendez-vous inattendu : $(cle)"
termine
echo "captures : $SORTIE/note.png $SORTIE/semaine.png $SORTIE/annee.png"
