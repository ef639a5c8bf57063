"""Writes the fuzzers' seed corpus, one folder per target, from records laid by hand after the
layout tables. Usage: graines.py OUTPUT_FOLDER"""
import os, struct, sys

def texte(s, n):
    return s.encode('cp1252')[:n].ljust(n, b' ')

def rv(cle, txt='Coupe', duree=30, client=0, couleur=0xC0FFC0, dernier=0):
    return (texte(cle, 20) + texte(txt, 402) + bytes(12) + struct.pack('<iiiii', duree, client,
            96, couleur, 0) + bytes(12) + struct.pack('<i', dernier) + texte('', 20) +
            texte('0611223344040303', 20) + b'\r\n')

def param(cle, valeur, nb=0):
    return texte(valeur, 106) + struct.pack('<iii', 0, nb, 0) + texte(cle, 25) + b' '

def inter(cle, valeur, nb=0):
    return texte(cle, 15) + texte('', 8) + texte(valeur, 40) + texte('', 61) + struct.pack('<i', nb)

def arr(nom, info, nb=0):
    return (texte('', 15) + texte(nom, 40) + bytes(28) + texte('', 22) + struct.pack('<ii', nb, 0)
            + texte(info, 101) + bytes(42))

def cli(nom, tel, dernier=0):
    r = bytearray(texte('0002', 15) + texte(nom, 40) + texte('3 rue', 40) * 3 + texte('', 30) +
                  texte(tel, 15) + texte('', 30) + struct.pack('<ii', 0, dernier) + b'\x09\x00')
    return bytes(r.ljust(1024, b' '))

def dossier(*fichiers):
    return b''.join(struct.pack('<H', len(f)) + f for f in fichiers)

jour = rv('', dernier=3) + rv('040303:09H30:10H15') + rv('----------') + rv('040303:12H00:13H00')
store = param('', '', 2) + param('TORVA:HEURE', '07:12:19:020') + param('TORVA:HORL', '1    |H|255          +|M|65280')
intlog = inter('#INIT#', '', 2) + inter('TORVA:NUMUSER', '0001 Sophie') + inter('TORVA:RETOUR', 'caisse')
catalogue = arr('', '', 2) + arr('Coupe femme', '045') + arr('Brushing', '7.5')
clients = cli('', '', 2) + cli('Clients Divers', '') + cli('DURAND Marie', '01.02.03.04.05')
def sms(txt, nb=0, etat=0):
    return texte(txt, 502) + struct.pack('<ii', nb, etat) + (b'\r\n' if txt else b'  ')

def message(envoi, tel, ref, affiche, msg):
    return (envoi.ljust(19) + tel.ljust(30) + ref.ljust(20) + ' ' * 10 + affiche.ljust(20) +
            msg)

file_sms = (sms('', 2) + sms(message('200403030900', '0611223344', '06112233440403030930',
                                     '03/03/2004   09:00', 'Rappel RDV 09:30')) +
            sms(message('200403030900', '0611223344', '06112233440403030930',
                        '03/03/2004   09:00', 'Rappel RDV 09:30'), etat=3))
reglages_sms = [texte('', 20)] * 2001
reglages_sms[0] = texte('#INIT#03-03-2004', 20)
reglages_sms[1099] = texte('1   1    30', 20)
reglages_sms[1100] = texte('RDV #HEU# le #DAT#', 20)

graines = {
    'formats': [rv('040303:09H30:10H15'), store, intlog, catalogue, clients[:1024]],
    'jour': [jour, rv('', dernier=0x20202020) + jour[512:], rv('JO:040303', dernier=1)],
    'param': [store, param('', '', 0x7FFFFFFF) + store[144:]],
    'messages': [dossier(intlog, inter('#INIT#03/03/200', '') * 11)],
    'clients': [dossier(clients, catalogue, jour)],
    'dossier': [dossier(b'01 : Sophie\r\n02 : Julien\r\n', store, intlog, jour, catalogue,
                        texte('0', 20) * 42)],
    'sms': [dossier(file_sms, b''.join(reglages_sms)), dossier(file_sms[:512], b'')],
}
for cible, entrees in graines.items():
    os.makedirs(os.path.join(sys.argv[1], cible), exist_ok=True)
    for i, e in enumerate(entrees):
        open(os.path.join(sys.argv[1], cible, f'graine{i}'), 'wb').write(e)
