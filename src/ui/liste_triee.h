#pragma once
// The list control that keeps its items sorted by their text: without regard to case, each new
// item after its equals.

#include <algorithm>
#include <QString>
#include <vector>

namespace agenda::ui {

// Sorts items as such a list holds them; `texte` gives an item's text.
template <class T, class Texte>
void trie_comme_une_liste(std::vector<T>& items, Texte texte) {
    std::stable_sort(items.begin(), items.end(), [&](const T& a, const T& b) {
        return QString::compare(texte(a), texte(b), Qt::CaseInsensitive) < 0;
    });
}

} // namespace agenda::ui
