#include "VerificaArchivio.h"

#include "CopiaGrezza.h"
#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"
#include "QuelloDiPrima.h"
#include "SegniDiCifra.h"
#include "SostituisciArchivio.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

namespace {

QString nomeTipo(ColumnType type)
{
    switch (type) {
    case ColumnType::Long:
        return QStringLiteral("numero intero");
    case ColumnType::Number:
        return QStringLiteral("numero");
    case ColumnType::Date:
        return QStringLiteral("data");
    case ColumnType::Boolean:
        return QStringLiteral("sì/no");
    case ColumnType::Text:
        return QStringLiteral("testo");
    case ColumnType::Memo:
        return QStringLiteral("memo");
    }
    return QStringLiteral("sconosciuto");
}

QStringList tabelleDi(const QString &script)
{
    static const QRegularExpression create(QStringLiteral("^CREATE TABLE (\\w+)"), QRegularExpression::MultilineOption);
    QStringList names;
    for (auto found = create.globalMatch(script); found.hasNext();)
        names += found.next().captured(1);
    return names;
}

QString istruzioneDi(Connection &archive, const QString &table)
{
    Recordset rows;
    rows.Open(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = '%1'").arg(table), archive,
              Recordset::Access::ReadOnly);
    return rows.Eof() ? QString() : rows.value(0).text();
}

// The column of a table whose value the engine gives to each new row; empty where there is none.
QString chiaveDi(Connection &archive, const QString &table)
{
    static const QRegularExpression key(QStringLiteral("[(,\\s\\[\"`](\\w+)[\\]\"`]?\\s+INTEGER\\s+PRIMARY\\s+KEY"),
                                        QRegularExpression::CaseInsensitiveOption);
    return key.match(istruzioneDi(archive, table)).captured(1);
}

// What is told of a table's columns by the record set that stands on it.
void leggiColonne(Recordset &rows, Connection &connection, const QString &table)
{
    rows.Open(QStringLiteral("SELECT * FROM [%1]").arg(table), connection, Recordset::Access::AppendOnly);
}

QStringList guastiDellaTabella(Connection &model, Connection &archive, const QString &table)
{
    Recordset expected;
    Recordset found;
    leggiColonne(expected, model, table);
    try {
        leggiColonne(found, archive, table);
    } catch (const Failure &failure) {
        return {QStringLiteral("La tabella \"%1\" non si può leggere: %2").arg(table, failure.words())};
    }

    QStringList faults;
    for (int i = 0; i < expected.fieldCount(); ++i) {
        const FieldInfo &column = expected.field(i);
        if (!found.hasField(column.name)) {
            faults += QStringLiteral("Nella tabella \"%1\" manca la colonna \"%2\"").arg(table, column.name);
            continue;
        }
        const FieldInfo &other = found.field(found.fieldIndex(column.name));
        if (other.type != column.type)
            faults += QStringLiteral("Nella tabella \"%1\" la colonna \"%2\" è di tipo %3 invece di %4")
                          .arg(table, column.name, nomeTipo(other.type), nomeTipo(column.type));
    }
    if (const QString key = chiaveDi(model, table); key.compare(chiaveDi(archive, table), Qt::CaseInsensitive) != 0)
        faults += QStringLiteral("Nella tabella \"%1\" la colonna \"%2\" non è la chiave").arg(table, key);
    return faults;
}

// The tables and columns, against a fresh archive made for the purpose.
QStringList guastiDelloSchema(Connection &archive, const QString &script)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("modello.db"));
    makeArchive(path, script);
    Connection model;
    if (const OpenResult opened = model.Open(path); !opened)
        throw Failure(FailureNumber::Engine, opened.words);

    QStringList faults;
    for (const QString &table : tabelleDi(script)) {
        if (archive.hasTable(table))
            faults += guastiDellaTabella(model, archive, table);
        else
            faults += QStringLiteral("Manca la tabella \"%1\"").arg(table);
    }
    return faults;
}

bool unaTabellaDi(const Connection &archive, const QString &script)
{
    for (const QString &table : tabelleDi(script))
        if (archive.hasTable(table))
            return true;
    return false;
}

// The engine tells several faults in one text, under a heading.
QStringList righeDi(const QStringList &told)
{
    QStringList lines = told.join('\n').split('\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith("***"); });
    return lines;
}

// What a file that is no plain archive says of itself by its beginning and size; empty where it may be an encrypted
// one.
QString estraneo(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray start = file.read(kInizioCifrato);
    if (isJetFile(start))
        return QStringLiteral("Il file è un archivio .mdb, non un archivio di questo programma");
    if (start.isEmpty())
        return QStringLiteral("Il file è vuoto, non è un archivio");
    if (isPlainArchive(start) || (pareCifrato(start) && file.size() % kInizioCifrato == 0))
        return {};
    if (pareCifrato(start))
        return QStringLiteral("Il file non è un archivio, oppure è un archivio protetto a cui manca la fine");
    if (QByteArrayView(start).count('\0') == start.size())
        return QStringLiteral("Il file comincia con una pagina di zeri: se era un archivio, il suo inizio è perduto");
    return QStringLiteral("Il file non è un archivio");
}

Verifica esito(Verifica::Esito kind, const QStringList &words)
{
    return {kind, words};
}

QStringList danni(const QStringList &told)
{
    QStringList faults;
    for (const QString &line : righeDi(told))
        faults += QStringLiteral("Il file è danneggiato: %1").arg(line);
    return faults;
}

// With no index in the table of contents, what else is damaged is left; the pages of the indexes then serve nothing.
bool tabelleIntere(const QString &path, const QString &password)
{
    static const QRegularExpression unused(QStringLiteral("^Page \\d+ is never used$"));
    try {
        takeOutIndexes(path, password);
        QStringList left = righeDi(integrityCheck(path, password));
        left.removeIf([](const QString &line) { return unused.match(line).hasMatch(); });
        return left.isEmpty();
    } catch (const Failure &) {
        return false;
    }
}

Verifica verificaSchema(Connection &archive)
{
    const bool household = unaTabellaDi(archive, scriptSchema());
    if (!household && !unaTabellaDi(archive, scriptSchemaSistema()))
        return esito(Verifica::Esito::Estraneo,
                     {QStringLiteral("Il file non ha nessuna delle tabelle di questo programma")});
    const QStringList faults = guastiDelloSchema(archive, household ? scriptSchema() : scriptSchemaSistema());
    return esito(faults.isEmpty() ? Verifica::Esito::InOrdine : Verifica::Esito::Incompleto, faults);
}

// The file may be changed: it is a copy that is thrown away afterwards.
Verifica verificaCopia(const QString &path, const QString &password)
{
    if (const QString words = estraneo(path); !words.isEmpty())
        return esito(Verifica::Esito::Estraneo, {words});

    Connection archive;
    const OpenResult opened = archive.OpenForInspection(path, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        return esito(Verifica::Esito::PasswordRichiesta, {opened.words});
    if (!opened)
        return esito(Verifica::Esito::Danneggiato, {QStringLiteral("L'archivio non si apre: %1").arg(opened.words)});

    const QStringList told = integrityCheck(path, password);
    if (righeDi(told).isEmpty())
        return verificaSchema(archive);
    archive.Close();
    return esito(tabelleIntere(path, password) ? Verifica::Esito::IndiciDaRiparare : Verifica::Esito::Danneggiato,
                 danni(told));
}

Failure guasto(const QString &words)
{
    return Failure(FailureNumber::Engine, words);
}

// A copy of the archive with its indexes made anew, which is sound and holds all that the tables held.
void rifai(const QString &path, const QString &nuovo, const QString &password)
{
    const CopiaGrezza senzaIndici(path);
    const QStringList indexes = takeOutIndexes(senzaIndici.path(), password);
    copyEncrypted(senzaIndici.path(), nuovo, password, password);
    runStatements(nuovo, indexes, password);
    if (tableContents(senzaIndici.path(), password) != tableContents(nuovo, password))
        throw guasto(QStringLiteral("La copia riparata non ha tutte le righe"));
    const Verifica after = verificaCopia(nuovo, password);
    if (!after.guasti.isEmpty() && after.esito != Verifica::Esito::Incompleto)
        throw guasto(after.guasti.first());
}

} // namespace

Verifica verificaArchivio(const QString &told, const QString &password)
{
    const QString path = QFileInfo(told).canonicalFilePath();
    if (!QFileInfo(path).isFile())
        return esito(Verifica::Esito::Estraneo, {QStringLiteral("Il file \"%1\" non c'è").arg(told)});
    std::optional<CopiaGrezza> copia;
    {
        const ArchiveHold fermo(path);
        if (!fermo.isHeld())
            return esito(Verifica::Esito::InUso,
                         {QStringLiteral("L'archivio \"%1\" è in uso da un altro programma: riprovare quando è chiuso")
                              .arg(told)});
        copia.emplace(path);
    }
    return verificaCopia(copia->path(), password);
}

QString riparaArchivio(const QString &told, const QString &password, const QDateTime &quando)
{
    const QString path = fileDellArchivio(told);
    const auto fermo = tieniFermoIntero(path, password);
    {
        const CopiaGrezza copia(path);
        const Verifica before = verificaCopia(copia.path(), password);
        if (before.esito == Verifica::Esito::InOrdine)
            return {};
        if (before.esito != Verifica::Esito::IndiciDaRiparare)
            throw guasto(before.guasti.first());
    }
    const FileProvvisorio nuovo(path);
    rifai(path, nuovo.path(), password);
    QuelloDiPrima prima(path, password, quando);
    sostituisciArchivio(nuovo, path, *fermo);
    prima.resta();
    return prima.path();
}
