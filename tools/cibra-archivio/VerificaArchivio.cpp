#include "VerificaArchivio.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

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

// A file of the Jet engine is of sizes that an encrypted archive has, too; its head tells it.
bool diJet(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(32).contains("Jet DB");
}

Verifica guasto(const QString &words)
{
    return {Verifica::Esito::Guasto, {words}};
}

} // namespace

Verifica verificaArchivio(const QString &path, const QString &password)
{
    if (!QFileInfo(path).isFile())
        return guasto(QStringLiteral("Il file \"%1\" non c'è").arg(path));

    if (diJet(path))
        return guasto(QStringLiteral("Il file è un archivio .mdb, non un archivio di questo programma"));

    Connection archive;
    const OpenResult opened = archive.Open(path, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        return {Verifica::Esito::PasswordRichiesta, {opened.words}};
    if (!opened)
        return guasto(QStringLiteral("L'archivio non si apre: %1").arg(opened.words));

    QStringList faults;
    for (const QString &line : righeDi(integrityCheck(path, password)))
        faults += QStringLiteral("Il file è danneggiato: %1").arg(line);
    const bool system = unaTabellaDi(archive, scriptSchemaSistema()) && !unaTabellaDi(archive, scriptSchema());
    faults += guastiDelloSchema(archive, system ? scriptSchemaSistema() : scriptSchema());
    return {faults.isEmpty() ? Verifica::Esito::InOrdine : Verifica::Esito::Guasto, faults};
}
