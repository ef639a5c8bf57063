#pragma once
// The widgets of the open book, shown from the state of Torva1.

#include "book/torva1.h"
#include "ui/geometrie.h"
#include "ui/systeme.h"
#include "ui/vue/vue.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <QImage>
#include <QWidget>
#include <tuple>
#include <vector>

class QCalendarWidget;
class QPainter;
class QLabel;
class QPushButton;
class QTableWidget;
class QToolButton;

namespace agenda {

class Sepaffic;

// The book's leather, and its pages' backgrounds, at the screen's scale: drawn on a thread of the
// toolkit's pool from the moment this is made. Made as the program opens, before the day is
// loaded, it is drawn by the time the book is built and shown.
class CouvertureDessinee {
public:
    struct Fonds {
        std::vector<QImage> cuir;    // the leather, a picture for each of parties()
        std::array<QImage, 2> pages; // the left page's background, the right page's
    };
    explicit CouvertureDessinee(qreal echelle);
    // For a window of that size in pixels, at that scale.
    bool convient(QSize taille, qreal echelle) const;
    // Where the leather shows, in the window's pixels.
    const std::vector<QRect>& parties() const { return parties_; }
    // Waited for, the first time, if still drawing.
    const Fonds& fonds();
    // A page's background at `r` (in the window's pixels) over `taille` device pixels.
    void page(QPainter& g, const QRect& r, QSize taille, bool gauche);
    // The page's background drawn with the leather, given once.
    QImage page_prete(bool gauche);

private:
    QSize taille_;
    qreal echelle_;
    std::vector<QRect> parties_;
    const std::shared_ptr<Fonds> fonds_ = std::make_shared<Fonds>(); // filled by the thread
    ui::ACote fait_; // waited for, if still drawing, when it goes
};

namespace ui {
class LegendeGravee;
class VueSurface;
} // namespace ui

class Torva1Vue : public QWidget, public ui::Vue {
public:
    // Built after the day's load, it shows it; `couverture`, drawn beforehand, is taken if it
    // fits the window.
    explicit Torva1Vue(Torva1& logique, std::shared_ptr<CouvertureDessinee> couverture = nullptr);
    ~Torva1Vue() override;
    // The day on show, on paper or in a PDF file, through the print dialog.
    void imprime();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void montre() override;
    QLabel* texte(QWidget* parent, const ui::RectTwips& r, double points, bool gras,
                  Qt::Alignment a);
    // A picture button on the right page; its click waits for the click to end.
    QToolButton* bouton_pied(const ui::RectTwips& r, QPixmap (*image)(QSize), const QString& aide,
                             std::function<void()> clic);

    Torva1& l_;
    std::unique_ptr<Sepaffic> sepaffic_;
    ui::VueSurface* pageg_;
    ui::VueSurface* paged_;
    std::array<QPushButton*, Torva1::nb_onglets> ongletg_{}, ongletd_{};
    QLabel* label7_;
    // The date's captions on the left page: the year, the day's name, its number, the month.
    std::array<std::unique_ptr<ui::LegendeGravee>, 4> date_;
    QCalendarWidget* calend_;
    QToolButton *picture2_, *picture3_;
    std::vector<QWidget*> vue_jour_;    // what only the day view shows
    std::vector<QWidget*> vue_semaine_; // what only the week view shows

    // The labels of a page or a strip, kept from one showing to the next: lrv, lrvd, then the
    // strips' lrv0 to lrv6.
    struct Reserve {
        QWidget* parent;
        std::vector<QLabel*> etiquettes;
        std::vector<int> indices; // the appointment each label shows, by its label's place
    };
    static constexpr int reserve_g = 0, reserve_d = 1, reserve_bande = 2;
    std::array<Reserve, 2 + Torva1::nb_bandes> reserves_{};
    void montre_etiquettes(int reserve, const std::map<int, EtiquetteRv>* etiquettes);
    QLabel* nouvelle_etiquette(int reserve);
    void clic_etiquette(int reserve, int i);

    // The week view.
    void construit_semaine();
    void montre_semaine(bool visible);
    std::array<ui::VueSurface*, Torva1::nb_bandes> pages_{};
    std::array<QLabel*, Torva1::nb_bandes> njours_{};
    QLabel* text3_ = nullptr;

    // The year view.
    void construit_annee();
    void montre_annee();
    QLabel* picture6_ = nullptr;
    std::array<QTableWidget*, 12> g1_{};
    std::array<QLabel*, 12> label111_{};
    QLabel *label222_ = nullptr, *label8_ = nullptr, *label9_ = nullptr, *label5_ = nullptr,
           *label6_ = nullptr;
    int dessin_annee_montre_ = -1;
    std::tuple<int, int, std::int32_t> feries_montres_{}; // year, month and colour shown
};

} // namespace agenda
