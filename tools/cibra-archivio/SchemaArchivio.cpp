#include "SchemaArchivio.h"

#include <QRegularExpression>

namespace {

using Option = QRegularExpression::PatternOption;

ColumnType typeOf(const QString &word)
{
    if (word == u"INTEGER")
        return ColumnType::Long;
    if (word == u"REAL")
        return ColumnType::Number;
    if (word == u"DATE")
        return ColumnType::Date;
    if (word == u"BOOLEAN")
        return ColumnType::Boolean;
    return word == u"TEXT" ? ColumnType::Memo : ColumnType::Text;
}

TabellaSchema tableOf(const QString &name, const QString &body)
{
    static const QRegularExpression line(QStringLiteral("^\\s*(\\w+)\\s+([A-Z]+)(?:\\((\\d+)\\))?(.*)$"),
                                         Option::MultilineOption);
    TabellaSchema table;
    table.nome = name;
    for (auto found = line.globalMatch(body); found.hasNext();) {
        const QRegularExpressionMatch column = found.next();
        table.colonne += ColonnaSchema{column.captured(1), typeOf(column.captured(2)), column.captured(3).toInt(),
                                       column.captured(2) == u"VARIANT"};
        if (column.captured(4).contains(QStringLiteral("PRIMARY KEY")))
            table.chiave = column.captured(1);
    }
    return table;
}

} // namespace

const ColonnaSchema *TabellaSchema::colonna(const QString &name) const
{
    for (const ColonnaSchema &known : colonne)
        if (known.nome.compare(name, Qt::CaseInsensitive) == 0)
            return &known;
    return nullptr;
}

const TabellaSchema *SchemaArchivio::tabella(const QString &name) const
{
    for (const TabellaSchema &known : tabelle)
        if (known.nome.compare(name, Qt::CaseInsensitive) == 0)
            return &known;
    return nullptr;
}

SchemaArchivio leggiSchema(const QString &script)
{
    static const QRegularExpression table(QStringLiteral("^CREATE TABLE (\\w+) \\(\n(.*?)^\\);"),
                                          Option::MultilineOption | Option::DotMatchesEverythingOption);
    static const QRegularExpression index(QStringLiteral("^CREATE INDEX (\\w+)"), Option::MultilineOption);
    SchemaArchivio schema;
    for (auto found = table.globalMatch(script); found.hasNext();) {
        const QRegularExpressionMatch one = found.next();
        schema.tabelle += tableOf(one.captured(1), one.captured(2));
    }
    for (auto found = index.globalMatch(script); found.hasNext();)
        schema.indici += found.next().captured(1);
    return schema;
}

QString conColonnaPiuLarga(const QString &script, const QString &table, const QString &column, int characters)
{
    const QRegularExpression place(
        QStringLiteral("^CREATE TABLE %1 \\(\n(?:(?!^\\);).)*?^\\s*%2\\s+(?:VARCHAR|VARIANT)\\(\\K\\d+")
            .arg(table, column),
        Option::MultilineOption | Option::DotMatchesEverythingOption);
    return QString(script).replace(place, QString::number(characters));
}
