#include "generateur.h"

#include "data/dossier.h"
#include "data/formats.h"
#include "data/rendez_vous.h"
#include "data/texte.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <QFile>
#include <QRandomGenerator>
#include <unistd.h>
#include <vector>

namespace agenda::bench {

void genere_rendez_vous(std::int16_t collab, int records, int du_jour) {
    std::vector<std::uint8_t> tout(std::size_t(records) * RecRv::longueur);
    QRandomGenerator rng(42);
    std::vector<bool> sur_le_jour(std::size_t(records), false);
    // Ten years, or more for a larger file so that a day keeps a few dozen appointments at most;
    // never a hundred years, where two dates would share a key.
    const int etendue = std::clamp(records / 20, 3600, 36000);
    for (int n = 0; n < du_jour;) {
        const int i = 1 + int(rng.bounded(records - 1));
        if (!sur_le_jour[std::size_t(i)]) {
            sur_le_jour[std::size_t(i)] = true;
            ++n;
        }
    }
    for (int r = 1, k = 0; r <= records; ++r) {
        RecRv rec;
        rec.pose(RecRv::fin_rec, u"\r\n");
        if (r == 1) {
            rec.pose(RecRv::dernier_num, records - 1);
        } else {
            Date d = jour - etendue / 2 + rng.bounded(etendue);
            if (sur_le_jour[std::size_t(r - 1)])
                d = jour;
            else if (d == jour)
                d += 1;
            const int heure = 8 + (k++ % 10);
            rec.pose(RecRv::cle_rv, cle_rendez_vous(d, motif_zeros(heure, 2), QStringLiteral("00"),
                                                    motif_zeros(heure, 2), QStringLiteral("45")));
            rec.pose(RecRv::texte_rv, u"Coupe et brushing");
            rec.pose(RecRv::couleur_rv, 0xC0FFC0);
        }
        std::copy(rec.octets.begin(), rec.octets.end(),
                  tout.begin() + std::ptrdiff_t(r - 1) * RecRv::longueur);
    }
    const QByteArray nom = nom_fichier_rv(collab, false).toLatin1();
    const int fd = ::open(nom.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const bool ecrit = fd >= 0 && ::pwrite(fd, tout.data(), tout.size(), 0) == ssize_t(tout.size());
    if (fd >= 0) ::close(fd);
    if (!ecrit) std::abort();
}

void prepare_dossier_livre(int records) {
    QFile lien(QStringLiteral("lien_agenda.txt"));
    if (!lien.open(QIODevice::WriteOnly)) std::abort();
    for (int i = 1; i <= 20; ++i)
        lien.write(
            QStringLiteral("%1 : Collaborateur %1\r\n").arg(i, 2, 10, QLatin1Char('0')).toLatin1());
    lien.close();
    genere_rendez_vous(0, records, 12);
}

} // namespace agenda::bench
