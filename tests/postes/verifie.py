"""verifie.py FILE [SAVES_THAT_RETURNED]: after saves from several processes or a kill, every
record must be whole and every save that had returned in the file. Prints the count of records
and of texts; exits 1 with the faults found."""
import os, sys

nom = sys.argv[1]
octets = open(nom, 'rb').read() if os.path.exists(nom) else b''  # killed before it opened it
fautes = [f"longueur {len(octets)}"] if len(octets) % 512 else []
textes = set()
for r in range(1, len(octets) // 512):
    rec = octets[r * 512:(r + 1) * 512]
    if rec == bytes(512):
        continue  # a number drawn by a process killed before it wrote its record
    if rec[510:] != b'\r\n' or rec[:20].strip() and not rec.startswith(b'040303:09H00:10H00'):
        fautes.append(f"enregistrement {r + 1} : {rec[:20]!r}")
    textes.add(rec[20:422].decode('latin-1').strip())
# Only whole lines: a kill can leave the last one cut, a save whose text is not known.
rendues = open(sys.argv[2]).read().split('\n')[:-1] if len(sys.argv) > 2 else []
fautes += [f"{t} a rendu la main mais n'est pas dans le fichier" for t in rendues if t not in textes]
textes.discard('')
print(max(len(octets) // 512 - 1, 0), len(textes))
if fautes:
    print(*fautes[:10], sep='\n', file=sys.stderr)
sys.exit(1 if fautes else 0)
