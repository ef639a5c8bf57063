#!/usr/bin/env bash
# Installed as a desktop program: `cmake --install` into a folder, the menu entry and the
# AppStream description validated, the icon at every size, --version and --help answered; then
# the Debian package made by CPack holds the same files and depends on Debian's Qt 6.
# Called as BUILD OUTPUT.
set -euo pipefail
build=$1 sortie=$2 id=fr.agenda.Agenda
rm -rf "$sortie" && mkdir -p "$sortie"
cmake --install "$build" --prefix "$sortie/racine" > /dev/null
r=$sortie/racine
desktop-file-validate "$r/share/applications/$id.desktop"
appstreamcli validate --no-net "$r/share/metainfo/$id.metainfo.xml" > /dev/null
for n in 16 24 32 48 64 128 256; do
    [ -s "$r/share/icons/hicolor/${n}x${n}/apps/$id.png" ] || { echo "pas d'icône ${n}x${n}"; exit 1; }
done
grep -qx "Agenda [0-9.]*" <("$r/bin/agenda" --version) || { echo "--version : $("$r/bin/agenda" --version)"; exit 1; }
"$r/bin/agenda" --help | grep -q "dossier courant" || { echo "--help ne dit pas le dossier"; exit 1; }

(cd "$build" && cpack -G DEB -B "$sortie/deb" > /dev/null)
deb=$(ls "$sortie"/deb/agenda_*.deb)
contenu=$(dpkg-deb -c "$deb" | awk '{ print $NF }')
for f in bin/agenda share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/48x48/apps/$id.png share/icons/hicolor/256x256/apps/$id.png; do
    grep -qx "./usr/$f" <<< "$contenu" || { echo "le paquet n'a pas /usr/$f"; exit 1; }
done
dpkg-deb -f "$deb" Depends | grep -q "libqt6widgets6" || { echo "dépendances : $(dpkg-deb -f "$deb" Depends)"; exit 1; }
echo "paquet : $deb"
