#pragma once
// The parameter store WTORV_IA.WDO: keyed settings shared by every workstation on the folder,
// searched from the start on every access, opened and closed around each operation.

#include <QString>

namespace agenda {

void ouvre_param();
// The value trimmed, or the empty text when the key is absent.
QString lit_valeur_param(const QString& cle);
// Stores the value, adding the key when it is new.
void ecrit_param(const QString& cle, const QString& valeur);

} // namespace agenda
