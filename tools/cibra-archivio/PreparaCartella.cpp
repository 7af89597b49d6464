#include "PreparaCartella.h"

#include "core/Locations.h"
#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/text/ProgramFolder.h"

#include <QDir>
#include <QFileInfo>

void preparaCartella(const QString &told, QDate day)
{
    const QString path = QDir(told).absolutePath();
    if (!QDir().mkpath(path))
        throw Failure::usual(FailureNumber::PathAccess, path);

    const ProgramFolder folder(path);
    if (!folder.fileExists("NetServer.Mdb"))
        creaArchivioSistema(folder.resolve("NetServer.Mdb"));
    if (folder.fileExists(kGestioneRete))
        return;
    AssicuraCartellaIni(folder);
    if (!folder.folderExists("Archivio"))
        folder.makeFolder("Archivio");
    if (!folder.fileExists("Archivio\\famiglia.db"))
        creaArchivioEsempio(folder.resolve("Archivio\\famiglia.db"), day);
    const QFileInfo archive(folder.resolve("Archivio\\famiglia.db"));
    ScriviGestioneRete(folder, {}, archive.path(), archive.fileName());
}
