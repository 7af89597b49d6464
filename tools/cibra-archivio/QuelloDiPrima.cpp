#include "QuelloDiPrima.h"

#include "CopiaGrezza.h"
#include "core/CopieDiSicurezza.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Connection.h"

#include <QFile>
#include <QFileInfo>

namespace {

void conGliStessiDiritti(const QString &path, const QString &archivio)
{
    const QFile::Permissions rights = QFileInfo(archivio).permissions();
    for (const QString &file : QStringList(path) + companionFiles(path))
        if (QFileInfo::exists(file))
            QFile::setPermissions(file, rights);
}

} // namespace

QuelloDiPrima::QuelloDiPrima(const QString &archivio, const QString &password, const QDateTime &quando)
{
    const QString copia = NomeDiCopia(archivio, quando);
    try {
        m_path = copia;
        if (!diventaCopia(archivio, password, copia)) {
            m_path = copia + QStringLiteral(".prima");
            copiaConGiornale(archivio, m_path);
        }
        conGliStessiDiritti(m_path, archivio);
    } catch (const Failure &) {
        togli();
        throw;
    }
}

QuelloDiPrima::~QuelloDiPrima()
{
    if (!m_resta)
        togli();
}

// Opening a damaged archive may change it, so that not the copy that is opened is kept of such a one.
bool QuelloDiPrima::diventaCopia(const QString &archivio, const QString &password, const QString &copia)
{
    const CopiaGrezza opened(archivio);
    Connection archive;
    const OpenResult result = archive.OpenForInspection(opened.path(), password);
    m_protetto = result.outcome == OpenOutcome::PasswordRichiesta;
    if (!result || !integrityCheck(opened.path(), password).isEmpty())
        return false;
    archive.Close();
    if (hasJournal(opened.path()))
        return false;
    if (!QFile::rename(opened.path(), copia))
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("L'archivio di prima non si può tenere in \"%1\": la cartella non si può "
                                     "scrivere, o il disco è pieno")
                          .arg(copia));
    return true;
}

void QuelloDiPrima::togli() const
{
    for (const QString &file : QStringList(m_path) + companionFiles(m_path))
        QFile::remove(file);
}
