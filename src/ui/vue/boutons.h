#pragma once
// The picture buttons "Oui" and "Non" of the small windows, and the arrows that step from day to
// day.

#include "ui/geometrie.h"

#include <functional>

class QToolButton;
class QWidget;

namespace agenda::ui {

QToolButton* bouton_image(QWidget& parent, const RectTwips& r, bool oui,
                          std::function<void()> clic);

// What an arrow steps by, which its tooltip says.
enum class Pas { jour, semaine, annee };
QToolButton* fleche_jour(QWidget& parent, const RectTwips& r, bool precedent,
                         std::function<void()> clic, Pas pas = Pas::jour);

} // namespace agenda::ui
