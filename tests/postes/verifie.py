"""Checks an appointment file after saves from several processes or a kill: every record whole,
and which texts it holds. Usage: verifie.py FILE [SAVES_THAT_RETURNED...] -> prints the count of
records and of texts, and exits 1 on a torn record or a returned save that is missing."""
import sys

try:
    octets = open(sys.argv[1], 'rb').read()
except FileNotFoundError:  # killed before it opened the file
    octets = b''
erreurs = []
if len(octets) % 512:
    erreurs.append(f"longueur {len(octets)} : pas un multiple de 512")
textes = set()
for r in range(1, len(octets) // 512):
    rec = octets[r * 512:(r + 1) * 512]
    if rec == bytes(512):
        continue  # a number drawn by a process killed before it wrote its empty record
    if rec[510:512] != b'\r\n':
        erreurs.append(f"enregistrement {r + 1} sans fin de ligne")
    cle = rec[0:20]
    if cle.strip() and not cle[:18].decode('latin-1').startswith('040303:09H00:10H00'):
        erreurs.append(f"enregistrement {r + 1} : clé {cle!r}")
    textes.add(rec[20:422].decode('latin-1').strip())
for attendu in sys.argv[2:]:
    for t in open(attendu).read().split():
        if t not in textes:
            erreurs.append(f"la sauvegarde {t} a rendu la main mais n'est pas dans le fichier")
textes.discard('')
print(max(len(octets) // 512 - 1, 0), len(textes))
for e in erreurs[:10]:
    print(e, file=sys.stderr)
sys.exit(1 if erreurs else 0)
