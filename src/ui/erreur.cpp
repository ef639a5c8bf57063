#include "ui/erreur.h"

#include "ui/systeme.h"

#include <cerrno>
#include <cstring>

namespace agenda {

QString texte_systeme(int numero) {
    switch (numero) {
    case ENOENT:
        return QStringLiteral("fichier ou dossier introuvable");
    case EACCES:
    case EPERM:
        return QStringLiteral("accès refusé");
    case ENOSPC:
        return QStringLiteral("plus de place sur le disque");
    case EDQUOT:
        return QStringLiteral("quota du disque dépassé");
    case EROFS:
        return QStringLiteral("disque en lecture seule");
    case EISDIR:
        return QStringLiteral("c'est un dossier, pas un fichier");
    case ENOTDIR:
        return QStringLiteral("un élément du chemin n'est pas un dossier");
    case EIO:
        return QStringLiteral("erreur d'entrée-sortie du disque");
    case EINVAL:
        return QStringLiteral("position ou argument invalide");
    case EFBIG:
        return QStringLiteral("fichier trop gros");
    case EMFILE:
    case ENFILE:
        return QStringLiteral("trop de fichiers ouverts");
    case ENAMETOOLONG:
        return QStringLiteral("nom de fichier trop long");
    case EBADF:
        return QStringLiteral("fichier non ouvert");
    default:
        return QStringLiteral("erreur système %1").arg(numero);
    }
}

void fin_sur_erreur(const Erreur& erreur) {
    ui::message_fatal(erreur.message());
    ui::termine(1);
}

} // namespace agenda
