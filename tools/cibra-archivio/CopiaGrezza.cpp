#include "CopiaGrezza.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/NewFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kPezzo = 1 << 20; // bytes read at once

void copiaByte(QFile &from, QFile &to)
{
    for (;;) {
        const QByteArray piece = from.read(kPezzo);
        if (piece.isEmpty() && from.atEnd())
            return;
        if (piece.isEmpty() || to.write(piece) != piece.size())
            throw Failure(FailureNumber::PathAccess,
                          QStringLiteral("Il file \"%1\" non si può copiare: non si legge, o il disco è pieno")
                              .arg(from.fileName()));
    }
}

} // namespace

void copiaFile(const QString &from, const QString &to)
{
    QFile original(from);
    if (!original.open(QIODevice::ReadOnly))
        throw Failure(FailureNumber::PathAccess, QStringLiteral("Il file \"%1\" non si può leggere").arg(from));
    NewFile made(to, NewFile::Readers::OwnerAlone);
    QFile copy(to);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Failure::usual(FailureNumber::PathAccess, to);
    copiaByte(original, copy);
    made.keep();
}

void copiaConGiornale(const QString &archivio, const QString &to)
{
    copiaFile(archivio, to);
    // The readers' map is made anew from the journal.
    for (const QLatin1String &ending : {kWriteAheadLog, kRollbackJournal})
        if (QFileInfo(archivio + ending).size() > 0)
            copiaFile(archivio + ending, to + ending);
}

CopiaGrezza::CopiaGrezza(const QString &archivio)
{
    const QFileInfo file(archivio);
    if (QFileInfo(file.path()).isWritable()) {
        try {
            copiaConGiornale(archivio, m_file.emplace(archivio).path());
            return;
        } catch (const Failure &) {
            m_file.reset(); // its disk is full: the one of the temporary files may have room
        }
    }
    copiaConGiornale(archivio, m_file.emplace(m_folder.emplace().filePath(file.fileName())).path());
}
