#include "catalogue/ArchivioPagine.h"

#include <QDir>

QString CartellaDocumenti(const ModNetServer &modulo)
{
    return modulo.mondo.folder.resolve("\\Documenti");
}

void ApriPagina(ModNetServer &modulo, const QString &cartella, const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    const ProgramKind kind = suffix == "txt" || suffix == "log" ? ProgramKind::TextViewer : ProgramKind::Page;
    modulo.mondo.programmi.start(kind, QDir::toNativeSeparators(QDir(cartella).filePath(file)));
}
