// The day on paper: the print dialog's PDF file of a known day holds the day's texts, on one
// page.

#include "book/vue/torva1_vue.h"
#include "support/support.h"
#include "ui/vue/widgets.h"

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace agenda;

namespace {

QString sortie_de(const QString& programme, const QStringList& arguments) {
    QProcess p;
    p.start(programme, arguments);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

class Impression : public agenda::test::Livre {};

TEST_F(Impression, LaJourneeSurUnePageA4) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) manque";
    ecrit(QStringLiteral("tf_r0000.wdo"),
          agenda::test::rv_entete(3) + agenda::test::rv("040303:09H30:10H15", "Balayage DURAND") +
              agenda::test::rv("040303:15H00:16H00", "Couleur MARTIN") +
              agenda::test::rv("040304:09H00:10H00", "Demain BERNARD"));
    Torva1Vue vue(*livre);
    charge();
    vue.show();
    const QString pdf = chemin(QStringLiteral("jour.pdf"));
    bool demande = false;
    ui::fixe_dialogue_impression([&](QPrinter& p) {
        demande = true;
        EXPECT_EQ(p.pageLayout().orientation(), QPageLayout::Landscape);
        p.setOutputFormat(QPrinter::PdfFormat);
        p.setOutputFileName(pdf);
        return true;
    });
    vue.imprime();
    ui::fixe_dialogue_impression({});
    ASSERT_TRUE(demande);

    const QString texte = sortie_de(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    for (const char* attendu :
         {"Balayage DURAND", "Couleur MARTIN", "Agenda", "Mercredi 03 mars 2004"})
        EXPECT_TRUE(texte.contains(QString::fromUtf8(attendu))) << attendu << "\n"
                                                                << texte.toStdString();
    EXPECT_FALSE(texte.contains(QStringLiteral("BERNARD")));
    const QString infos = sortie_de(QStringLiteral("pdfinfo"), {pdf});
    EXPECT_TRUE(infos.contains(QRegularExpression(QStringLiteral("Pages:\\s+1\\n"))))
        << infos.toStdString();
    EXPECT_TRUE(infos.contains(QStringLiteral("(A4)"))) << infos.toStdString();
}

} // namespace
