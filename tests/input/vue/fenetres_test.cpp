// The real widgets of the windows, offscreen: each belongs to the window that opened it, and
// the keyboard and the window's close reach the same handlers as the buttons.

#include "book/vue/torva1_vue.h"
#include "editor/inter.h"
#include "editor/vue/detarv_vue.h"
#include "input/vue/date_97_vue.h"
#include "input/vue/mini_97_vue.h"
#include "support/support.h"
#include "ui/dates.h"
#include "ui/systeme.h"
#include "ui/vue/echelle.h"
#include "ui/vue/style.h"

#include <algorithm>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

using namespace agenda;

namespace {

class Fenetres : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        ui::enregistre_vue<Mini97, Mini97Vue>();
        ui::enregistre_vue<Date97, Date97Vue>();
        ui::enregistre_vue<Detarv, DetarvVue>();
    }
    // Acts on the next modal window as soon as it is shown (its load may yield to the event
    // loop before it is).
    static void puis(std::function<void(QDialog&)> geste) {
        QWidget* avant = QApplication::activeModalWidget();
        auto* attente = new QTimer;
        QObject::connect(attente, &QTimer::timeout, [attente, avant, geste] {
            auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!d || d == avant) return;
            attente->stop();
            attente->deleteLater();
            geste(*d);
        });
        attente->start(5);
    }
    static void clique(QDialog& d, const char* texte) {
        for (auto* b : d.findChildren<QPushButton*>())
            if (b->text() == QString::fromUtf8(texte)) b->click();
    }
    static void touche(QWidget& w, int touche) {
        QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier);
        QApplication::sendEvent(&w, &appui);
    }
};

} // namespace

TEST_F(Fenetres, LeClavierEtLaFermeturePassentParLesBoutons) {
    // The prompt box: Escape and the window's close are its second button; what was pasted keeps
    // no line break.
    for (const bool echap : {true, false}) {
        puis([echap](QDialog& d) {
            d.findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("Du\npont"));
            echap ? touche(d, Qt::Key_Escape) : void(d.close());
        });
        EXPECT_EQ(demande(QStringLiteral("Nom ?|Dupont"), 129), 7);
        EXPECT_EQ(etat.mini_texte, QStringLiteral("Du pont"));
    }
    // The date chooser takes a day chosen with the arrows.
    puis([](QDialog& d) {
        touche(*d.findChild<QCalendarWidget*>()->findChild<QTableView*>(), Qt::Key_Right);
        d.findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly).at(0)->click(); // Oui
    });
    Date97 choix;
    ui::montre_modal(choix);
    EXPECT_EQ(etat.texte_retour, QStringLiteral("Jeudi 04 mars 2004"));
}

TEST_F(Fenetres, ChaqueFenetreAppartientACelleQuiLOuvreEtLeLivreNePasseJamaisDessus) {
    ASSERT_EQ(charge(), -1);
    Torva1Vue vue(*livre);
    vue.show();
    QWidget* editeur = nullptr;
    QWidget* question = nullptr;
    puis([&](QDialog& d) {
        editeur = &d;
        EXPECT_EQ(d.parentWidget(), &vue);
        touche(d, Qt::Key_Escape); // refused: the editor's buttons are its ways out
        d.close();
        EXPECT_TRUE(d.isVisible());
        puis([&](QDialog& q) {
            question = &q;
            EXPECT_EQ(q.parentWidget(), editeur);
            livre->Timer3.start(0); // the book to the front, under the windows it opened
            QApplication::processEvents();
            EXPECT_TRUE(q.isVisible());
            EXPECT_EQ(QApplication::activeModalWidget(), &q);
            touche(q, Qt::Key_Escape);
        });
        clique(d, "Efface le texte");
        EXPECT_EQ(etat.mini_mode, 7);
        clique(d, "Effacer le rendez-vous"); // a new appointment: the way out
    });
    livre->pageg_MouseDown(2000, 3700 + 10);
    EXPECT_NE(editeur, nullptr);
    EXPECT_NE(question, nullptr);
}

TEST_F(Fenetres, LesJoursEtLesHeuresSeLisentEnEntierAChaqueEchelle) {
    // The book and its editor on a small screen, a common one and a large one, in the program's
    // style: no day's heading is cut short, and the lists' arrows leave the time selectors room
    // for their digits' ink.
    ASSERT_EQ(charge(), -1);
    const double avant = ui::px_par_twip();
    const QString style_avant = QApplication::style()->name();
    QApplication::setStyle(new ui::StyleDuLivre);
    for (const double echelle : {1.0 / 18, 1.0 / 15, 1.0 / 12, 2.0 / 15}) {
        const std::string ou = " at " + std::to_string(1 / echelle) + " twips a pixel";
        ui::fixe_echelle(echelle);
        Torva1Vue vue(*livre);
        vue.show();
        QApplication::processEvents();
        auto* jours = vue.findChild<QCalendarWidget*>()->findChild<QTableView*>();
        const int marges =
            2 * (jours->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, jours) + 1);
        for (int c = 0; c < 7; ++c) {
            const QString jour = jours->model()->index(0, c).data().toString();
            EXPECT_LE(jours->fontMetrics().horizontalAdvance(jour) + marges, jours->columnWidth(c))
                << jour.toStdString() << ou;
        }
        int heures = 0;
        puis([&](QDialog& d) {
            for (auto* heure : d.findChildren<QComboBox*>()) {
                // A line writes two pixels from its edge.
                const QLineEdit* texte = heure->lineEdit();
                EXPECT_LT(2 + texte->fontMetrics().tightBoundingRect(texte->text()).right(),
                          texte->width())
                    << texte->text().toStdString() << ou;
                ++heures;
            }
            clique(d, "Effacer le rendez-vous");
        });
        livre->pageg_MouseDown(2000, 3700 + 10);
        EXPECT_EQ(heures, 4);
    }
    ui::fixe_echelle(avant);
    QApplication::setStyle(style_avant);
}

TEST_F(Fenetres, FermerLeLivreLanceLeRetourCommeEchap) {
    ecrit_inter(QStringLiteral("TORVA:RETOUR"), QStringLiteral("caisse --menu"));
    ASSERT_EQ(charge(), -1);
    QStringList lances;
    ui::fixe_lanceur([&](const QString& l) { return lances << l, true; });
    Torva1Vue vue(*livre);
    vue.show();
    EXPECT_THROW(vue.close(), agenda::test::FinDemandee);
    EXPECT_EQ(lances, QStringList{QStringLiteral("caisse --menu")});
}

TEST_F(Fenetres, LHeureSeTapeSeChoisitEtSePrendSurLHorloge) {
    ASSERT_EQ(charge(), -1);
    Torva1Vue vue(*livre);
    vue.show();
    QStringList fin;
    puis([&](QDialog& d) {
        // A start typed at 14, then its minutes chosen in the list: the end follows both, the
        // standard 20 minutes later. A 5 typed in the end's minutes stays 5, not the list's 50.
        // The window is left in any case.
        const auto selecteurs = d.findChildren<QComboBox*>();
        const auto tape = [&d](QComboBox* s, std::initializer_list<char> touches) {
            // Typed into the focused line, as the operator does: completion follows the focus.
            QApplication::setActiveWindow(&d);
            s->setFocus();
            s->lineEdit()->selectAll();
            for (const char c : touches) {
                QKeyEvent appui(QEvent::KeyPress, Qt::Key_0 + (c - '0'), Qt::NoModifier,
                                QString(QChar::fromLatin1(c)));
                QApplication::sendEvent(s->lineEdit(), &appui);
            }
        };
        if (selecteurs.size() != 4 ||
            !std::all_of(selecteurs.begin(), selecteurs.end(),
                         [](const QComboBox* s) { return s->lineEdit() != nullptr; }))
            return clique(d, "Effacer le rendez-vous");
        tape(selecteurs[0], {'1', '4'});
        selecteurs[1]->setCurrentIndex(6);
        emit selecteurs[1]->activated(6);
        fin << selecteurs[2]->currentText() << selecteurs[3]->currentText();
        tape(selecteurs[3], {'5'});
        fin << selecteurs[3]->currentText();
        // The minutes on the clock: a press and a release of the left button on the same cell,
        // here minute cells 1 and 3 of the first face.
        Detarv cellules;
        cellules.Label16 = QStringLiteral("0");
        cellules.charge_horloge();
        const auto milieu = [&cellules](int i) {
            const ui::RectTwips& r = cellules.sminu[std::size_t(i)];
            return QPoint(ui::px(Detarv::Picture2_rect.left + r.left + r.width / 2),
                          ui::px(Detarv::Picture2_rect.top + r.top + r.height / 2));
        };
        const auto clic = [&](int appui, int relache, Qt::MouseButton bouton) {
            QWidget* cadran = d.childAt(milieu(appui));
            for (const auto& [type, i] : {std::pair{QEvent::MouseButtonPress, appui},
                                          {QEvent::MouseButtonRelease, relache}}) {
                const QPointF ici = cadran->mapFrom(&d, QPointF(milieu(i)));
                QMouseEvent e(type, ici, cadran->mapToGlobal(ici), bouton,
                              type == QEvent::MouseButtonPress ? bouton : Qt::NoButton,
                              Qt::NoModifier);
                QApplication::sendEvent(cadran, &e);
            }
            fin << selecteurs[1]->currentText();
        };
        clic(1, 1, Qt::LeftButton);
        clic(3, 3, Qt::RightButton); // not a click
        clic(3, 1, Qt::LeftButton);  // released on another cell
        clic(3, 3, Qt::LeftButton);
        clique(d, "Effacer le rendez-vous");
    });
    livre->pageg_MouseDown(2000, 3700 + 10);
    EXPECT_EQ(fin, (QStringList{"14", "50", "5", "05", "05", "05", "15"}));
}
