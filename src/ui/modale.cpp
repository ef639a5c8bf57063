#include "ui/modale.h"

#include "data/erreur.h"

#include <QHash>

namespace agenda::ui {

namespace {
QHash<QString, Presentation>& vues() {
    static QHash<QString, Presentation> v;
    return v;
}
QHash<QString, Presentation>& scenarios() {
    static QHash<QString, Presentation> s;
    return s;
}
} // namespace

void FenetreModale::ferme() {
    fermee_ = true;
    if (sur_fermeture) sur_fermeture();
}

void montre_modal(FenetreModale& f) {
    f.Form_Load();
    if (const auto s = scenarios().constFind(f.nom()); s != scenarios().cend()) {
        (*s)(f);
        return;
    }
    if (const auto v = vues().constFind(f.nom()); v != vues().cend()) {
        (*v)(f);
        return;
    }
    throw ErreurFatale(QStringLiteral("La fenêtre %1 n'a pas de présentation.").arg(f.nom()));
}

void enregistre_vue(const QString& nom, Presentation vue) {
    vues().insert(nom, std::move(vue));
}

bool vue_enregistree(const QString& nom) {
    return vues().contains(nom);
}

void scenario(const QString& nom, Presentation script) {
    if (script)
        scenarios().insert(nom, std::move(script));
    else
        scenarios().remove(nom);
}

} // namespace agenda::ui
