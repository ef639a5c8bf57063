#!/usr/bin/env bash
# Starts the real agenda on a fresh demo folder in a virtual X server, takes a screenshot, then
# ends it with Escape as an operator would, and checks it ended cleanly.
set -euo pipefail
ici=$(cd "$(dirname "$0")" && pwd)
source "$ici/commun.sh"
export AGENDA=$1 SORTIE=$3 COMMUN=$ici/commun.sh
prepare "$SORTIE" "$2"

cat > "$SORTIE/session.sh" <<'FIN'
#!/usr/bin/env bash
set -uo pipefail
source "$COMMUN"
lance
import -window root "$SORTIE/agenda.png"
termine_par_echap
FIN
chmod +x "$SORTIE/session.sh"
xvfb-run -a -s "-screen 0 1280x1024x24" "$SORTIE/session.sh"
test -s "$SORTIE/agenda.png"
echo "capture : $SORTIE/agenda.png"
