#!/usr/bin/env bash
# Starts the real agenda on a fresh demo folder in a virtual X server, takes a screenshot, then
# ends it with Escape as an operator would, and checks it ended cleanly.
set -euo pipefail
agenda=$1
demo=$2
sortie=$3
rm -rf "$sortie"
mkdir -p "$sortie"
"$demo" "$sortie/donnees" >/dev/null

cat > "$sortie/session.sh" <<FIN
#!/usr/bin/env bash
cd "$sortie/donnees"
env -u QT_QPA_PLATFORM "$agenda" 2> "$sortie/agenda.err" &
pid=\$!
fenetre=""
for _ in \$(seq 1 50); do
    fenetre=\$(xdotool search --onlyvisible --name '^Agenda' 2>/dev/null | head -1 || true)
    [ -n "\$fenetre" ] && break
    sleep 0.2
done
[ -n "\$fenetre" ] || { echo "aucune fenêtre Agenda"; kill \$pid; exit 1; }
sleep 1.5
import -window root "$sortie/agenda.png"
xdotool windowfocus --sync "\$fenetre" 2>/dev/null || true
xdotool key Escape
for _ in \$(seq 1 50); do
    kill -0 \$pid 2>/dev/null || break
    sleep 0.1
done
if kill -0 \$pid 2>/dev/null; then echo "Escape n'a pas fermé Agenda"; kill \$pid; exit 1; fi
wait \$pid
FIN
chmod +x "$sortie/session.sh"
xvfb-run -a -s "-screen 0 1280x1024x24" "$sortie/session.sh"
test -s "$sortie/agenda.png"
echo "capture : $sortie/agenda.png"
