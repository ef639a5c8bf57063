#!/usr/bin/env bash
# Several workstations on one appointment file, through the program's own save path: four
# processes save at once (the lost saves are counted and printed), then a process is killed
# with SIGKILL at random moments while it saves. No lock is taken; every record must stay
# whole, and every save that had returned must be in the file.
set -euo pipefail
sauveur=$1 sortie=$2 ici=$(cd "$(dirname "$0")" && pwd)
processus=${POSTES_PROCESSUS:-4} sauvegardes=${POSTES_SAUVEGARDES:-5000} coupures=${POSTES_COUPURES:-300}
rm -rf "$sortie" && mkdir -p "$sortie/ensemble" "$sortie/coupures"

for p in $(seq 1 "$processus"); do
    "$sauveur" "$sortie/ensemble" "$sauvegardes" "p$p" > "$sortie/ensemble/p$p.txt" &
done
wait
read -r records trouves < <(python3 "$ici/verifie.py" "$sortie/ensemble/tf_r0000.wdo")
total=$((processus * sauvegardes))
perdues=$((total - trouves))
python3 -c "print(f'sauvegardes perdues : $perdues sur $total ({100 * $perdues / $total:.3f} %), $records enregistrements')"
# No lock, so no promise of none; but two that draw the same number append one after the other.
[ $((perdues * 2000)) -le "$total" ] || { echo "plus de 0,05 % de sauvegardes perdues"; exit 1; }

for k in $(seq 1 "$coupures"); do
    rm -f "$sortie/coupures/tf_r0000.wdo"
    "$sauveur" "$sortie/coupures" 1000000 "k$k" > "$sortie/coupures/rendues.txt" &
    pid=$!
    sleep "0.0$((RANDOM % 40 + 10))"
    kill -9 $pid
    wait $pid 2>/dev/null || true
    python3 "$ici/verifie.py" "$sortie/coupures/tf_r0000.wdo" "$sortie/coupures/rendues.txt" \
        > /dev/null || { echo "coupure $k : fichier abîmé"; exit 1; }
done
echo "$coupures coupures par SIGKILL : aucun enregistrement déchiré, aucune sauvegarde rendue perdue"
