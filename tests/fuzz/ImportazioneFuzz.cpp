// Whatever the reading of an old archive sends, and whatever its head and texts are: it is taken or refused. What is
// taken can be written again as the same, and the engine makes the tables that are planned for it.
#include "FlussoMdb.h"
#include "PianoImportazione.h"
#include "platform/Failure.h"
#include "TestataMdb.h"
#include "TestoMdb.h"
#include "ValoriImportati.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <sqlcipher/sqlite3.h>

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

QByteArray quoted(const QString &name)
{
    return '"' + name.toUtf8().replace("\"", "\"\"") + '"';
}

void mustBeGood(sqlite3 *archive, int result, const QByteArray &told)
{
    if (result == SQLITE_OK)
        return;
    std::fprintf(stderr, "%s\n%s\n", sqlite3_errmsg(archive), told.constData());
    std::abort();
}

// Every column of the plan is there, by its name.
void makeTables(const PianoImportazione &plan)
{
    sqlite3 *raw = nullptr;
    sqlite3_open(":memory:", &raw);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> archive(raw, sqlite3_close);
    const QByteArray script = plan.script.toUtf8();
    mustBeGood(raw, sqlite3_exec(raw, script.constData(), nullptr, nullptr, nullptr), script);
    for (const TabellaPrevista &table : plan.tabelle) {
        QByteArrayList names;
        for (const ColonnaPrevista &column : table.colonne)
            names += quoted(table.nome) + '.' + quoted(column.nome);
        const QByteArray select = "SELECT " + names.join(", ") + " FROM " + quoted(table.nome);
        mustBeGood(raw, sqlite3_exec(raw, select.constData(), nullptr, nullptr, nullptr), select);
    }
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
    makeTables(pianoImportazione(content));
    // Outside the try: what was taken once must be taken again.
    const QByteArray once = streamOf(content);
    if (streamOf(contentOf(once, once.size())) != once) {
        std::fprintf(stderr, "%s\n", once.constData());
        std::abort();
    }
    return 0;
}
