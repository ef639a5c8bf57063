#pragma once
// The picture buttons "Oui" and "Non" of the small windows.

#include "ui/geometrie.h"

#include <functional>

class QToolButton;
class QWidget;

namespace agenda::ui {

QToolButton* bouton_image(QWidget& parent, const RectTwips& r, bool oui,
                          std::function<void()> clic);

} // namespace agenda::ui
