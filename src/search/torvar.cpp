#include "search/torvar.h"

#include "clients/lit_cli.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/octets.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/detarv.h"
#include "input/mini_97.h"
#include "ui/dates.h"
#include "ui/liste_triee.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace agenda {

namespace {

// The text without the blanks that pad it, a byte at a time from its end.
std::size_t fin_du_texte_simple(const std::uint8_t* p, std::size_t n) {
    while (n > 0 && p[n - 1] == ' ')
        --n;
    return n;
}

#if defined(__x86_64__)
__attribute__((target("avx2"))) std::size_t fin_du_texte_avx2(const std::uint8_t* p,
                                                              std::size_t n) {
    const __m256i blanc = _mm256_set1_epi8(' ');
    // Four vectors a step while all are blank, then one at a time inside the last step.
    for (; n >= 128; n -= 128) {
        const auto* q = reinterpret_cast<const __m256i*>(p + n - 128);
        const __m256i blancs =
            _mm256_and_si256(_mm256_and_si256(_mm256_cmpeq_epi8(_mm256_loadu_si256(q), blanc),
                                              _mm256_cmpeq_epi8(_mm256_loadu_si256(q + 1), blanc)),
                             _mm256_and_si256(_mm256_cmpeq_epi8(_mm256_loadu_si256(q + 2), blanc),
                                              _mm256_cmpeq_epi8(_mm256_loadu_si256(q + 3), blanc)));
        if (_mm256_movemask_epi8(blancs) != -1) break;
    }
    for (; n >= 32; n -= 32) {
        const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + n - 32));
        const auto autres = ~std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(a, blanc)));
        // The last byte that is not a blank, and the text ends after it.
        if (autres != 0) return n - std::size_t(std::countl_zero(autres));
    }
    return fin_du_texte_simple(p, n);
}
#endif

// Where the blanks that pad a text begin: nothing is sought past there. Read from the end, a
// whole vector at a time where the processor has them, since a text is mostly its padding.
std::size_t fin_du_texte(std::span<const std::uint8_t> texte) {
#if defined(__x86_64__)
    static const bool avx2 = __builtin_cpu_supports("avx2");
    if (avx2) return fin_du_texte_avx2(texte.data(), texte.size());
#endif
    return fin_du_texte_simple(texte.data(), texte.size());
}

// A word sought in a text field's bytes, as the lower-cased text would hold it, without decoding
// each record: the scan meets every record of twenty files. The word has no blank at either end.
class Mot {
public:
    // nullopt: a word that no CP1252 text can hold, so that nothing matches.
    static std::optional<Mot> de(const QString& minuscules) {
        Mot m;
        for (const QChar c : minuscules) {
            const std::uint8_t o = octets::octet_cp1252(c);
            if (octets::car_cp1252(o) != c) return std::nullopt;
            m.octets_.push_back(o);
        }
        // Upper and lower case differ by 0x20 in ASCII and Latin-1, but not for š, œ, ž, ÿ:
        // with those at the start the quick test could miss, and is not used.
        for (std::size_t i = 0; i < std::min<std::size_t>(2, m.octets_.size()); ++i)
            m.rapide_ &= m.octets_[i] < 0x80 || m.octets_[i] >= 0xC0;
        if (!m.octets_.empty()) {
            m.decalage_ = m.octets_.size() > 1 ? 1 : 0;
            m.va_ = partout(std::uint8_t(m.octets_[0] | 0x20));
            m.vb_ = partout(m.decalage_ ? std::uint8_t(m.octets_[1] | 0x20) : std::uint8_t(0));
        }
        return m;
    }

    bool dans(std::span<const std::uint8_t> tout_le_texte) const {
        const std::size_t n = octets_.size();
        if (n == 0) return true;
        const auto texte = tout_le_texte.first(fin_du_texte(tout_le_texte));
        const std::size_t t = texte.size();
        if (n > t) return false;
        return (!rapide_ || peut_etre(texte)) && cherche(texte);
    }

private:
    // Apart, so that the scan's path for the records turned away stays small.
    [[gnu::noinline]] bool cherche(std::span<const std::uint8_t> texte) const {
        const std::size_t t = texte.size();
        std::array<std::uint8_t, 512> bas;
        for (std::size_t i = 0; i < t; ++i)
            bas[i] = minuscule()[texte[i]];
        return std::search(bas.begin(), bas.begin() + std::ptrdiff_t(t), octets_.begin(),
                           octets_.end()) != bas.begin() + std::ptrdiff_t(t);
    }

    // Whether the first two bytes of the word (or the one) stand somewhere, in either case, give
    // or take a few symbols: sixteen places at a time, which turns most records away at the
    // speed the bytes come from the cache.
    bool peut_etre(std::span<const std::uint8_t> texte) const {
        constexpr std::size_t l = sizeof(V);
        const std::size_t n = texte.size();
        V vu{};
        std::size_t i = 0;
        for (; i + l + decalage_ <= n; i += l) {
            V x, y;
            std::memcpy(&x, texte.data() + i, l);
            std::memcpy(&y, texte.data() + i + decalage_, l);
            const V premier = V((x | casse_) == va_);
            vu |= decalage_ ? V(premier & V((y | casse_) == vb_)) : premier;
        }
        if (!rien(vu)) return true;
        const std::uint8_t a = va_[0], b = vb_[0];
        for (; i + decalage_ < n; ++i)
            if ((texte[i] | 0x20) == a && (!decalage_ || (texte[i + 1] | 0x20) == b)) return true;
        return false;
    }
    using V = std::uint8_t __attribute__((vector_size(16)));
    static V partout(std::uint8_t o) {
        V v;
        std::memset(&v, o, sizeof v);
        return v;
    }
    static bool rien(V v) {
        std::array<std::uint64_t, sizeof(V) / 8> parts;
        std::memcpy(parts.data(), &v, sizeof parts);
        return std::all_of(parts.begin(), parts.end(), [](std::uint64_t p) { return p == 0; });
    }
    // Each byte as its character in lower case would be stored.
    static const std::array<std::uint8_t, 256>& minuscule() {
        static const auto table = [] {
            std::array<std::uint8_t, 256> t{};
            for (int o = 0; o < 256; ++o) {
                const QChar bas = octets::car_cp1252(std::uint8_t(o)).toLower();
                const std::uint8_t b = octets::octet_cp1252(bas);
                t[std::size_t(o)] = octets::car_cp1252(b) == bas ? b : std::uint8_t(o);
            }
            return t;
        }();
        return table;
    }

    std::vector<std::uint8_t> octets_;
    bool rapide_ = true;
    std::size_t decalage_ = 0; // 1 when the quick test looks at two bytes
    V va_{}, vb_{}, casse_ = partout(0x20);
};

// The first six bytes as one number that orders as the bytes do.
std::uint64_t six_premiers(const std::uint8_t* p) {
    std::uint32_t quatre;
    std::uint16_t deux;
    std::memcpy(&quatre, p, 4);
    std::memcpy(&deux, p + 4, 2);
    if constexpr (std::endian::native == std::endian::little) {
        quatre = __builtin_bswap32(quatre);
        deux = __builtin_bswap16(deux);
    }
    return std::uint64_t(quatre) << 16 | deux;
}

// "yymmdd" as a day, month and day overflowing into the next as a date's parts do.
Date jour_de_cle(const QString& cle) {
    const QDate d(2000 + int(val(cle.left(2))), 1, 1);
    return ui::date_de(
        d.addMonths(int(val(cle.mid(2, 2))) - 1).addDays(int(val(cle.mid(4, 2))) - 1));
}

} // namespace

void Torvar::Form_Load() {
    vide_tableau();
    analyse_switch();
}

void Torvar::vide_tableau() {
    g1.assign(lignes_dessin, Ligne{});
}

void Torvar::analyse_switch() {
    oui[0] = Check1[0] != 0;
}

void Torvar::recherche_rv() {
    List1.clear();
    const QByteArray limite = Check1[0] != 0
                                  ? octets::vers_cp1252(motif_jour(ui::date_maintenant()))
                                  : QByteArray("000000");
    const std::uint64_t depuis =
                            six_premiers(reinterpret_cast<const std::uint8_t*>(limite.constData())),
                        annule = six_premiers(reinterpret_cast<const std::uint8_t*>("------"));
    const std::int32_t client = etat.num_client_courant;
    const std::optional<Mot> mot = Mot::de(critere_rv);
    // Apart from the scan's loop, which the records turned away keep to.
    const auto ajoute = [this](int c, std::int32_t n, std::span<const std::uint8_t> rec)
        __attribute__((noinline)) {
        const QString debut = RecRv::cle_rv.dans(rec).left(13) + QLatin1Char('|') +
                              motif_zeros(c, 2) + QLatin1Char('|') + motif_zeros(n, 6) +
                              QLatin1Char('|');
        List1.push_back(cadre(debut, 99) +
                        remplace_retours(RecRv::texte_rv.sans_blancs_dans(rec), u" "));
    };
    for (int c = 1; c <= collaborateurs; ++c) {
        ouvre_rv_de(std::int16_t(c));
        FichierRecords& f = canal_fichier(canal::rv);
        // Taken wide and without the repair: a file past 32,767 records is searched whole.
        parcourt_depuis_entete<RecRv>(
            f, RecRv::dernier_num, [&](std::int32_t n, std::span<const std::uint8_t> rec) {
                // Voided, or before the limit (a blank key sorts below "0"): bytes compare as the
                // texts do against a limit of digits.
                const std::uint64_t debut_cle = six_premiers(rec.data());
                if (debut_cle == annule || debut_cle < depuis) return true;
                if (client != 0 && octets::i32(rec, RecRv::num_client.offset) != client)
                    return true;
                const auto texte = rec.subspan(std::size_t(RecRv::texte_rv.offset),
                                               std::size_t(RecRv::texte_rv.largeur));
                if (mot && mot->dans(texte)) ajoute(c, n, rec);
                return true;
            });
    }
    ui::trie_comme_une_liste(List1, [](const QString& l) -> const QString& { return l; });
    affiche_tableau();
}

void Torvar::affiche_tableau() {
    vide_tableau();
    // Beyond the 200 rows of the design, the table grows rather than ending the program.
    if (List1.size() > g1.size()) g1.resize(List1.size());
    for (std::size_t i = 0; i < List1.size(); ++i) {
        const QString& l = List1[i];
        const int collab = int(val(mid1(l, 15, 2)));
        g1[i] = {mid1(l, 5, 2) + QLatin1Char('-') + mid1(l, 3, 2) + QStringLiteral("-20") +
                     mid1(l, 1, 2),
                 mid1(l, 8, 5), QLatin1Char(' ') + mid1(l, 100),
                 collab >= 1 && collab <= 20 ? mid1(etat.noms_par_num[std::size_t(collab)], 6)
                                             : QString(),
                 l.left(100)};
    }
}

void Torvar::btc_rech_Click() {
    const QString mot = sans_blancs(Text1);
    if (mot.isEmpty()) {
        demande(QStringLiteral("Vous devez préciser un crière de recherche d'au poins trois "
                               "lettres !"),
                0);
        return;
    }
    etat.num_client_courant = 0;
    critere_rv = mot.toLower();
    recherche_rv();
}

void Torvar::btcli_Click() {
    etat.num_client_courant = 0;
    LitCli liste;
    ui::montre_modal(liste);
    etat.num_client_courant = en_i16(val(mid1(etat.texte_retour, 82, 15)));
    recherche_rv();
}

void Torvar::oui_Click(int index) {
    if (index != 0) return;
    Check1[0] = Check1[0] != 0 ? 0 : 1;
    analyse_switch();
}

void Torvar::g1_DblClick(int ligne) {
    if (ligne < 1 || ligne > int(g1.size())) return;
    const QString cle = g1[std::size_t(ligne - 1)].cle;
    if (sans_blancs(cle).isEmpty()) return;
    ouvre_rv_de(en_i16(val(mid1(cle, 15, 2))));
    etat.num_rv = en_i32(val(mid1(cle, 18, 6)));
    etat.date_courante = jour_de_cle(cle);
    Detarv editeur;
    ui::montre_modal(editeur);
    critere_rv = sans_blancs(Text1).toLower();
    recherche_rv();
}

} // namespace agenda
