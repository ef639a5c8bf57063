#!/usr/bin/env bash
# Several workstations on one appointment file, through the program's own save path: four
# processes save at once (the lost saves are printed), then a process is killed with SIGKILL at
# random moments while it saves. No lock is taken; every record must stay whole, and every save
# that had returned must be in the file.
set -euo pipefail
sauveur=$1 sortie=$2 verifie=$(dirname "$0")/verifie.py
n=${POSTES_PROCESSUS:-4} par=${POSTES_SAUVEGARDES:-5000} coupures=${POSTES_COUPURES:-300}
rm -rf "$sortie" && mkdir -p "$sortie/ensemble" "$sortie/coupures"

for p in $(seq 1 "$n"); do "$sauveur" "$sortie/ensemble" "$par" "p$p" > /dev/null & done
wait
read -r records trouves < <(python3 "$verifie" "$sortie/ensemble/tf_r0000.wdo")
total=$((n * par)) perdues=$((n * par - trouves))
echo "sauvegardes perdues : $perdues sur $total, $records enregistrements"
# No lock, so no promise of none; but two that draw the same number append one after the other.
[ $((perdues * 2000)) -le "$total" ] || { echo "plus de 0,05 % de sauvegardes perdues"; exit 1; }

for k in $(seq 1 "$coupures"); do
    rm -f "$sortie/coupures/tf_r0000.wdo"
    "$sauveur" "$sortie/coupures" 1000000 "k$k" > "$sortie/coupures/rendues.txt" &
    sleep "0.0$((RANDOM % 40 + 10))"
    kill -9 $! && wait $! 2> /dev/null || true
    python3 "$verifie" "$sortie/coupures/tf_r0000.wdo" "$sortie/coupures/rendues.txt" > /dev/null \
        || { echo "coupure $k : fichier abîmé"; exit 1; }
done
echo "$coupures coupures par SIGKILL : aucun enregistrement déchiré, aucune sauvegarde rendue perdue"
