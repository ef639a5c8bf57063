#include "support/livre.h"

namespace agenda::test {

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
    for (const char* cle : cles) {
        octets += rv_vierge()
                      .texte(0, 20, cle)
                      .texte(20, 402, "  Coupe  ")
                      .i32(446, couleur++)
                      .texte(510, 2, "\r\n")
                      .octets();
    }
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
