#include "ui/modale.h"

#include "ui/erreur.h"

#include <unordered_map>

namespace agenda::ui {

namespace {
using Table = std::unordered_map<std::type_index, Presentation>;
Table& vues() {
    static Table v;
    return v;
}
Table& scenarios() {
    static Table s;
    return s;
}
} // namespace

void Fenetre::ferme() {
    fermee_ = true;
    if (sur_fermeture) sur_fermeture();
}

void montre_modal(FenetreModale& f) {
    f.Form_Load();
    const std::type_index type = typeid(f);
    if (const auto s = scenarios().find(type); s != scenarios().end()) return s->second(f);
    if (const auto v = vues().find(type); v != vues().end()) return v->second(f);
    throw Erreur(QStringLiteral("Fenêtre sans présentation : %1.").arg(type.name()));
}

void enregistre_presentation(std::type_index type, Presentation vue) {
    vues()[type] = std::move(vue);
}

void pose_scenario(std::type_index type, Presentation script) {
    if (script)
        scenarios()[type] = std::move(script);
    else
        scenarios().erase(type);
}

void oublie_scenarios() {
    scenarios().clear();
}

} // namespace agenda::ui
