#include "PianoImportazione.h"

#include "CreaArchivio.h"

#include <algorithm>

namespace {

QString quoted(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

bool same(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool holdsOneOf(const ContenutoMdb &content, const SchemaArchivio &schema)
{
    return std::any_of(content.tabelle.begin(), content.tabelle.end(),
                       [&](const TabellaMdb &table) { return schema.tabella(table.nome) != nullptr; });
}

QString declaration(const ColonnaPrevista &column)
{
    switch (column.tipo) {
    case TipoArchivio::Intero:
        return QStringLiteral("INTEGER");
    case TipoArchivio::Numero:
        return QStringLiteral("REAL");
    case TipoArchivio::Data:
        return QStringLiteral("DATE");
    case TipoArchivio::SiNo:
        return QStringLiteral("BOOLEAN NOT NULL DEFAULT 0");
    case TipoArchivio::Memo:
        return QStringLiteral("TEXT COLLATE NOCASE");
    case TipoArchivio::Byte:
        return QStringLiteral("BLOB");
    case TipoArchivio::Testo:
        break;
    }
    return QStringLiteral("VARCHAR(%1) COLLATE NOCASE").arg(column.ampiezza);
}

class Pianificatore
{
public:
    explicit Pianificatore(const ContenutoMdb &content) : m_content(content)
    {
        const QString household = scriptSchema();
        const QString system = scriptSchemaSistema();
        m_schema = leggiSchema(household);
        m_plan.script = household;
        const SchemaArchivio systemSchema = leggiSchema(system);
        if (!holdsOneOf(content, m_schema) && holdsOneOf(content, systemSchema)) {
            m_schema = systemSchema;
            m_plan.script = system;
        }
    }

    PianoImportazione run()
    {
        m_plan.note = m_content.note;
        if (!holdsOneOf(m_content, m_schema))
            m_plan.note += QStringLiteral("nel file non c'è nessuna tabella di questo programma");
        for (int i = 0; i < int(m_content.tabelle.size()); ++i)
            table(i);
        for (const TabellaSchema &ours : std::as_const(m_schema.tabelle))
            if (std::none_of(m_content.tabelle.begin(), m_content.tabelle.end(),
                             [&](const TabellaMdb &told) { return same(told.nome, ours.nome); }))
                m_plan.mancanti += ours.nome;
        return m_plan;
    }

private:
    void table(int index)
    {
        const TabellaMdb &told = m_content.tabelle[size_t(index)];
        TabellaPrevista next;
        next.sorgente = index;
        if (const TabellaSchema *ours = m_schema.tabella(told.nome)) {
            next.nome = ours->nome;
            known(told, *ours, next);
        } else {
            next.nome = freeName(told.nome);
            next.nostra = false;
            foreign(told, next);
        }
        m_plan.tabelle += next;
    }

    // Some names belong to the engine or to an index of ours.
    QString freeName(const QString &name)
    {
        if (!name.startsWith(QStringLiteral("sqlite_"), Qt::CaseInsensitive) &&
            !m_schema.indici.contains(name, Qt::CaseInsensitive))
            return name;
        QString other = QStringLiteral("importata_") + name;
        while (std::any_of(m_content.tabelle.begin(), m_content.tabelle.end(),
                           [&](const TabellaMdb &table) { return same(table.nome, other); }))
            other.prepend(QStringLiteral("importata_"));
        m_plan.note += QStringLiteral("la tabella \"%1\" si chiama ora \"%2\"").arg(name, other);
        return other;
    }

    ColonnaPrevista carried(const TabellaMdb &table, int index) const
    {
        const ColonnaMdb &told = table.colonne[index];
        ColonnaPrevista next;
        next.sorgente = index;
        next.nome = told.nome;
        next.nostra = false;
        next.tipo = tipoArchivio(told.tipo);
        next.ampiezza = told.tipo == TipoMdb::Guid ? 38 : widthOf(told);
        if (!staInNumeri(table, index)) {
            next.tipo = TipoArchivio::Testo;
            next.ampiezza = 40;
        }
        return next;
    }

    // The reader gives the size of a text in bytes of the file; two of them make a character where any text does.
    int widthOf(const ColonnaMdb &column) const { return std::max(1, column.ampiezza / m_content.bytePerLettera); }

    static bool staInNumeri(const TabellaMdb &table, int index)
    {
        return std::all_of(table.righe.begin(), table.righe.end(), [index](const RigaMdb &row) {
            const auto *decimal = std::get_if<DecimaleMdb>(&row[size_t(index)]);
            return !decimal || staInUnNumero(*decimal);
        });
    }

    void known(const TabellaMdb &told, const TabellaSchema &ours, TabellaPrevista &next)
    {
        for (int i = 0; i < told.colonne.size(); ++i) {
            const ColonnaMdb &column = told.colonne[i];
            const ColonnaSchema *target = ours.colonna(column.nome);
            if (!target) {
                next.colonne += carried(told, i);
                m_plan.script += QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3;\n")
                                     .arg(quoted(ours.nome), quoted(column.nome), declaration(next.colonne.last()));
                m_plan.note += QStringLiteral("%1: la colonna \"%2\" non è del programma ed è portata com'è")
                                   .arg(ours.nome, column.nome);
                continue;
            }
            if (same(target->nome, ours.chiave))
                next.chiave = int(next.colonne.size());
            const TipoArchivio type = target->variante ? tipoArchivio(column.tipo) : tipoArchivio(target->tipo);
            next.colonne += ColonnaPrevista{i, target->nome, type, true, 0};
            if (target->tipo == ColumnType::Text && column.tipo == TipoMdb::Testo && widthOf(column) > target->ampiezza)
                m_plan.script = conColonnaPiuLarga(m_plan.script, ours.nome, target->nome, widthOf(column));
        }
        for (const ColonnaSchema &column : ours.colonne)
            if (std::none_of(told.colonne.begin(), told.colonne.end(),
                             [&](const ColonnaMdb &other) { return same(other.nome, column.nome); }))
                m_plan.note += QStringLiteral("%1: nel file manca la colonna \"%2\"").arg(ours.nome, column.nome);
    }

    void foreign(const TabellaMdb &told, TabellaPrevista &next)
    {
        QStringList declarations;
        for (int i = 0; i < told.colonne.size(); ++i) {
            next.colonne += carried(told, i);
            const ColonnaPrevista &column = next.colonne.last();
            const bool isKey = told.chiave.size() == 1 && same(told.chiave.first(), column.nome);
            QString words = declaration(column);
            if (isKey && column.tipo == TipoArchivio::Intero) {
                next.chiave = i;
                words += told.colonne[i].contatore ? QStringLiteral(" PRIMARY KEY AUTOINCREMENT")
                                                   : QStringLiteral(" PRIMARY KEY");
            }
            declarations += quoted(column.nome) + u' ' + words;
        }
        if (!told.chiave.isEmpty() && next.chiave < 0)
            m_plan.note += QStringLiteral("%1: la chiave \"%2\" non è un numero intero e non è portata come chiave")
                               .arg(told.nome, told.chiave.join(QStringLiteral(", ")));
        m_plan.script +=
            QStringLiteral("CREATE TABLE %1 (%2);\n").arg(quoted(next.nome), declarations.join(QStringLiteral(", ")));
    }

    const ContenutoMdb &m_content;
    SchemaArchivio m_schema;
    PianoImportazione m_plan;
};

} // namespace

PianoImportazione pianoImportazione(const ContenutoMdb &content)
{
    return Pianificatore(content).run();
}
