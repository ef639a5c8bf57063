#include "support/support.h"

#include "clients/lit_cli.h"
#include "data/fichier_records.h"
#include "planning/torva11.h"
#include "sms/sms.h"
#include "ui/modale.h"
#include "ui/systeme.h"

#include <QDir>
#include <QFile>

namespace agenda::test {

Gabarit& Gabarit::pose(int offset, const QByteArray& octets) {
    octets_.replace(offset, octets.size(), octets);
    return *this;
}

Gabarit& Gabarit::entier(int offset, std::uint32_t v, int n) {
    for (int i = 0; i < n; ++i)
        octets_[offset + i] = char(v >> (8 * i));
    return *this;
}

Gabarit& Gabarit::texte(std::initializer_list<std::tuple<int, int, const char*>> champs) {
    for (const auto& [offset, largeur, latin1] : champs)
        texte(offset, largeur, latin1);
    return *this;
}

Gabarit& Gabarit::i32(std::initializer_list<std::pair<int, std::int32_t>> champs) {
    for (const auto& [offset, v] : champs)
        i32(offset, v);
    return *this;
}

Gabarit rv_vierge() {
    return Gabarit(512).zeros(422, 48);
}

QByteArray rv_entete(std::int32_t dernier) {
    return rv_vierge().i32(466, dernier).octets();
}

QByteArray rv(const char* cle, const char* texte, std::int32_t couleur, std::int32_t client) {
    return rv_vierge()
        .texte({{0, 20, cle}, {20, 402, texte}, {510, 2, "\r\n"}})
        .i32({{438, client}, {446, couleur}})
        .octets();
}

void DossierDonnees::SetUp() {
    ASSERT_TRUE(dossier_.isValid());
    ancien_ = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(dossier_.path()));
    ferme_tous_les_canaux();
    etat = Etat{};
    page_liste = 0;
    transfert = Transfert::repos;
    ref_sms_nouvelle.clear();
    ref_sms_chargee.clear();
    // No test touches the SMS module's real folder: by default it is missing.
    fixe_dossier_sms(dossier_.filePath(QStringLiteral("sans_sms/")));
    ui::fixe_horloge([] { return QDateTime(QDate(2004, 3, 3), QTime(10, 0)); });
    ui::fixe_fin([](int code) { throw FinDemandee{code}; });
    ui::fixe_lanceur([](const QString&) { return true; });
}

void DossierDonnees::TearDown() {
    ui::oublie_scenarios();
    ui::fixe_saisie({});
    fixe_disque(nullptr);
    ferme_tous_les_canaux();
    ui::fixe_horloge({});
    ui::fixe_fin({});
    ui::fixe_lanceur({});
    fixe_dossier_sms({});
    QDir::setCurrent(ancien_);
}

QByteArray DossierDonnees::contenu(const QString& nom) const {
    QFile f(chemin(nom));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void DossierDonnees::ecrit(const QString& nom, const QByteArray& octets) const {
    QFile f(chemin(nom));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(octets);
}

void Livre::SetUp() {
    DossierDonnees::SetUp();
    ecrit(QStringLiteral("lien_agenda.txt"), "01 : Sophie\r\n02 : Julien\r\n");
    livre = std::make_unique<Torva1>();
}

void Livre::TearDown() {
    livre.reset();
    DossierDonnees::TearDown();
}

void Livre::rendez_vous(const QString& fichier, const std::vector<const char*>& cles) {
    QByteArray octets = rv_entete(int(cles.size()));
    int couleur = 0x101010;
    for (const char* cle : cles)
        octets += rv(cle, "  Coupe  ", couleur++);
    ecrit(fichier, octets);
}

int Livre::charge() {
    try {
        livre->charge();
    } catch (const FinDemandee& f) {
        return f.code;
    }
    return -1;
}

} // namespace agenda::test
