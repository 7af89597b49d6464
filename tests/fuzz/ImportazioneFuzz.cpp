// Whatever the reading of an old archive sends, and whatever its head and texts are: it is taken or refused, and what
// is taken can be written again as the same.
#include "FlussoMdb.h"
#include "platform/Failure.h"
#include "TestataMdb.h"
#include "TestoMdb.h"
#include "ValoriImportati.h"

#include <cstdio>
#include <cstdlib>

namespace {

ContenutoMdb contentOf(const QByteArray &stream, qsizetype piece)
{
    LettoreFlusso reader;
    for (qsizetype from = 0; from < stream.size(); from += piece)
        reader.aggiungi(stream.mid(from, piece));
    return reader.prendi();
}

QByteArray streamOf(const ContenutoMdb &content)
{
    QByteArray stream = rigaInizio();
    for (const QString &note : content.note)
        stream += rigaNota(note);
    for (const TabellaMdb &table : content.tabelle) {
        stream += rigaTabella(table.nome, table.righeDichiarate);
        for (const ColonnaMdb &column : table.colonne)
            stream += rigaColonna(column);
        if (!table.chiave.isEmpty())
            stream += rigaChiave(table.chiave);
        for (const RigaMdb &row : table.righe)
            stream += rigaValori(row);
        stream += rigaFineTabella(qint64(table.righe.size()));
    }
    return stream + rigaFine(qint64(content.tabelle.size()));
}

void importValues(const ContenutoMdb &content)
{
    for (const TabellaMdb &table : content.tabelle)
        for (const RigaMdb &row : table.righe)
            for (const ValoreMdb &value : row)
                for (TipoArchivio target :
                     {TipoArchivio::Intero, TipoArchivio::Numero, TipoArchivio::Data, TipoArchivio::SiNo,
                      TipoArchivio::Testo, TipoArchivio::Memo, TipoArchivio::Byte})
                    (void)valoreImportato(value, target);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)leggiTestata(bytes, qint64(size) * 64);
    (void)testoJet4(bytes);

    ContenutoMdb content;
    try {
        content = contentOf(bytes, size % 7 + 1);
    } catch (const Failure &) {
        return 0;
    }
    importValues(content);
    // Outside the try: what was taken once must be taken again.
    const QByteArray once = streamOf(content);
    if (streamOf(contentOf(once, once.size())) != once) {
        std::fprintf(stderr, "%s\n", once.constData());
        std::abort();
    }
    return 0;
}
