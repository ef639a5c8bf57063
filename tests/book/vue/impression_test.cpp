// The book and the planning on paper: the print dialog's PDF file of a known day or week holds
// what the screen shows of it, and nothing of the days around it, on one A4 page.

#include "book/vue/torva1_vue.h"
#include "planning/torva11.h"
#include "planning/vue/torva11_vue.h"
#include "support/support.h"
#include "ui/vue/impression.h"

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace agenda;
using agenda::test::rv;
using agenda::test::rv_entete;

namespace {

QString sortie_de(const QString& programme, const QStringList& arguments) {
    QProcess p;
    p.start(programme, arguments);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

class Impression : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        // Wednesday 3 March 2004 for the book's own file, its week from Monday 1 March; the
        // planning's two collaborators that day.
        ecrit(QStringLiteral("tf_r0000.wdo"), rv_entete(5) +
                                                  rv("040303:09H30:10H15", "Balayage DURAND") +
                                                  rv("040303:15H00:16H00", "Couleur MARTIN") +
                                                  rv("040304:09H00:10H00", "Demain BERNARD") +
                                                  rv("040229:09H00:10H00", "Dimanche avant LEROY") +
                                                  rv("040308:09H00:10H00", "Lundi suivant GARCIA"));
        ecrit(QStringLiteral("tf_a0000.wdo"), rv_entete(1) + rv("SE:040301", "Inventaire lundi"));
        ecrit(QStringLiteral("tf_r0001.wdo"), rv_entete(2) +
                                                  rv("040303:10H00:11H00", "Soin PETIT") +
                                                  rv("040302:10H00:11H00", "Veille MOREAU"));
        ecrit(QStringLiteral("tf_r0002.wdo"),
              rv_entete(1) + rv("040303:14H00:15H00", "Coupe ROUX"));
        charge();
    }
    // The sheet the command prints, sent to a PDF file: its text, and pdfinfo's report.
    std::pair<QString, QString> imprime(const std::function<void()>& commande,
                                        const char* titre_dialogue) {
        const QString pdf = chemin(QStringLiteral("feuille.pdf"));
        QFile::remove(pdf);
        bool demande = false;
        ui::fixe_dialogue_impression([&](QPrinter& p) {
            demande = true;
            EXPECT_EQ(p.pageLayout().orientation(), QPageLayout::Landscape) << titre_dialogue;
            p.setOutputFormat(QPrinter::PdfFormat);
            p.setOutputFileName(pdf);
            return true;
        });
        commande();
        ui::fixe_dialogue_impression({});
        EXPECT_TRUE(demande) << titre_dialogue;
        return {sortie_de(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}),
                sortie_de(QStringLiteral("pdfinfo"), {pdf})};
    }
};

TEST_F(Impression, UneFeuilleA4QuiTientCeQueMontreLEcran) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) manque";
    Torva1Vue livre_vue(*livre);
    livre_vue.show();
    Torva11 planning;
    planning.Form_Load();
    Torva11Vue planning_vue(planning);

    struct Cas {
        const char* feuille;
        std::function<void()> commande;
        std::vector<const char*> presents, absents;
    } const cas[] = {
        {"planning",
         [&] { planning_vue.imprime(); },
         {"Planning — Mercredi 03 mars 2004", "Sophie", "Julien", "Soin PETIT", "Coupe ROUX"},
         {"MOREAU", "DURAND"}},
        {"jour",
         [&] { livre_vue.imprime(); },
         {"Agenda — Mercredi 03 mars 2004", "Balayage DURAND", "Couleur MARTIN"},
         {"BERNARD", "LEROY", "Inventaire"}},
        {"semaine",
         [&] {
             livre->sel_onglet(1);
             livre_vue.imprime();
         },
         {"Agenda — Semaine du lundi 01 mars 2004", "Lundi 01 mars 2004", "Dimanche 07 mars 2004",
          "Balayage DURAND", "Demain BERNARD", "Note de la semaine", "Inventaire lundi"},
         {"LEROY", "GARCIA"}},
    };
    for (const Cas& c : cas) {
        const auto [texte, infos] = imprime(c.commande, c.feuille);
        for (const char* attendu : c.presents)
            EXPECT_TRUE(texte.contains(QString::fromUtf8(attendu)))
                << c.feuille << ": " << attendu << "\n"
                << texte.toStdString();
        for (const char* absent : c.absents)
            EXPECT_FALSE(texte.contains(QString::fromUtf8(absent))) << c.feuille << ": " << absent;
        EXPECT_TRUE(infos.contains(QRegularExpression(QStringLiteral("Pages:\\s+1\\n"))))
            << c.feuille << "\n"
            << infos.toStdString();
        EXPECT_TRUE(infos.contains(QStringLiteral("(A4)"))) << c.feuille;
    }
}

} // namespace
