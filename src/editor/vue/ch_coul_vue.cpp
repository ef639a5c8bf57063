#include "editor/vue/ch_coul_vue.h"

#include "ui/vue/echelle.h"
#include "ui/vue/widgets.h"

#include <QLabel>

namespace agenda {

ChCoulVue::ChCoulVue(ChCoul& l) : VueModale(l, ChCoul::largeur, ChCoul::hauteur) {
    setWindowTitle(QStringLiteral("Couleur"));
    ui::libelle(*this, ChCoul::Label1_rect, ChCoul::Label1,
                ui::police(QStringLiteral("DejaVu Sans"), 10, true))
        ->setAlignment(Qt::AlignCenter);
    ui::palette(*this, ChCoul::Picture1_rect,
                [this, &l](std::int32_t c) { appelle([&] { l.Picture1_MouseDown(c); }); });
    pose_cadre(ui::coin_fin);
    ui::centre_fenetre_haut(*this);
}

} // namespace agenda
