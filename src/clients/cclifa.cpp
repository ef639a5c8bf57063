#include "clients/cclifa.h"

#include "clients/client.h"
#include "data/etat.h"
#include "data/texte.h"
#include "ui/erreur.h"

namespace agenda {

namespace {

constexpr std::int32_t rouge_sombre = 0x000080, noir = 0;
constexpr int premier_haut = 1400, pas = 540;

constexpr ui::RectTwips ligne(int i) {
    return {2900, premier_haut + pas * i, 6600, 420};
}

// The title a click on a class icon gives.
const std::array<const char*, 4> titres_des_icones = {"Madame", "Melle", "Monsieur", "Monsieur"};

} // namespace

const std::array<Cclifa::Saisie, Cclifa::nb_champs> Cclifa::saisies = {{
    {" Nom Prénom", 30, ligne(0)},
    {" Adresse", 30, ligne(1)},
    {" Adresse", 30, ligne(2)},
    {" Code + Ville", 30, ligne(3)},
    {" Téléphone ", 15, ligne(4)},
    {" Date Naiss.", 10, ligne(5)},
}};

QStringList Cclifa::Combo11_liste() {
    return {QStringLiteral("Monsieur"), QStringLiteral("Madame"), QStringLiteral("Melle")};
}

void Cclifa::Form_Load() {
    etape([] { ouvre_clients(); });
    etape([] { lit_client(etat.num_client_courant); });
    etape([&] {
        const Texte champs[] = {RecCli::nom_client, RecCli::adresse1,  RecCli::adresse2,
                                RecCli::code_ville, RecCli::telephone, RecCli::date_naiss};
        for (int c = 0; c < nb_champs; ++c)
            Text[std::size_t(c)] = sans_blancs(rec_cli.lit(champs[c]));
    });
    etape([&] { Combo11 = sans_blancs(rec_cli.lit(RecCli::titre)); });
    // A new client starts as "Madame", in class 1.
    etape([&] {
        if (Combo11.isEmpty()) Combo11 = Combo11_liste().at(1);
    });
    etape([&] {
        std::int16_t classe = rec_cli.lit(RecCli::sexe);
        if (classe < 1 || classe > 4) classe = 1;
        Label3 = QString::number(classe);
        select_sexe();
    });
}

void Cclifa::Text_Change(Champ c, const QString& texte) {
    QString& champ = Text.at(std::size_t(c));
    if (texte.size() > saisies.at(std::size_t(c)).limite && texte.size() > champ.size()) return;
    champ = texte;
}

void Cclifa::select_sexe() {
    const int choisi = int(val(Label3)) - 1;
    for (int i = 0; i < 4; ++i)
        Shape2[std::size_t(i)] = i == choisi ? Cadre{5, rouge_sombre, false} : Cadre{1, noir, true};
}

void Cclifa::sexe_Click(int index) {
    if (index < 0 || index > 3) return;
    Label3 = QString::number(index + 1);
    Combo11 = QString::fromLatin1(titres_des_icones[std::size_t(index)]);
    select_sexe();
}

void Cclifa::picture4_Click() {
    // Read again just before the write: what the point-of-sale program changed meanwhile stays.
    lit_client(etat.num_client_courant);
    rec_cli.pose(RecCli::nom_client, sans_blancs(Text[nom]));
    rec_cli.pose(RecCli::adresse1, sans_blancs(Text[adresse1]));
    rec_cli.pose(RecCli::adresse2, sans_blancs(Text[adresse2]));
    rec_cli.pose(RecCli::code_ville, sans_blancs(Text[ville]));
    rec_cli.pose(RecCli::telephone, sans_blancs(Text[telephone]));
    rec_cli.pose(RecCli::date_naiss, sans_blancs(Text[naissance]));
    rec_cli.pose(RecCli::titre, Combo11); // untrimmed, cut or padded to 15
    rec_cli.pose(RecCli::sexe, en_i16(val(Label3)));
    ecrit_client(etat.num_client_courant);
    ferme();
}

} // namespace agenda
