#include "ImportaArchivio.h"

#include "FileProvvisorio.h"
#include "PianoImportazione.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveBuilder.h"
#include "platform/store/ArchiveFile.h"
#include "TestataMdb.h"
#include "VerificaArchivio.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

using Esito = ValoreImportato::Esito;

Failure rifiuto(FailureNumber number, const QString &words)
{
    return Failure(number, words);
}

TestataMdb testataDi(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile())
        throw rifiuto(FailureNumber::FileNotFound, QStringLiteral("Il file \"%1\" non c'è").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        throw rifiuto(FailureNumber::PathAccess, QStringLiteral("Il file \"%1\" non si può leggere").arg(path));
    return leggiTestata(file.read(kTestataMdb), file.size());
}

void rifiutaEstraneo(const QString &path, const TestataMdb &head)
{
    switch (head.esito) {
    case TestataMdb::Esito::Buona:
        return;
    case TestataMdb::Esito::Corta:
    case TestataMdb::Esito::Tronca:
        throw rifiuto(FailureNumber::Engine,
                      QStringLiteral("Il file \"%1\" è tronco: ne manca la fine. Niente è stato importato").arg(path));
    case TestataMdb::Esito::Recente:
        throw rifiuto(FailureNumber::Engine,
                      QStringLiteral("Il file \"%1\" è di una versione più recente: si importano solo archivi .mdb dei "
                                     "formati Jet 3 e Jet 4")
                          .arg(path));
    case TestataMdb::Esito::Estranea:
        throw rifiuto(FailureNumber::Engine, QStringLiteral("Il file \"%1\" non è un archivio .mdb").arg(path));
    }
}

void controllaPassword(const QString &path, const TestataMdb &head, const QString &password)
{
    if (head.password.isEmpty() || head.password == password)
        return;
    throw rifiuto(FailureNumber::LoginRefused,
                  password.isEmpty() ? QStringLiteral("Il file \"%1\" è protetto da una password").arg(path)
                                     : QStringLiteral("La password del file \"%1\" non è quella giusta").arg(path));
}

void controllaPosto(const QString &path)
{
    // A link that leads nowhere is a file of somebody's, too.
    const QFileInfo info(path);
    if (info.exists() || info.isSymLink())
        throw rifiuto(FailureNumber::PathAccess, QStringLiteral("Il file \"%1\" esiste già").arg(path));
    if (!QFileInfo(info.path()).isWritable())
        throw rifiuto(FailureNumber::PathAccess,
                      QStringLiteral("La cartella \"%1\" non c'è o non si può scrivere").arg(info.path()));
}

ContenutoMdb contenutoDi(const QString &path, const Lettore &reader, const TestataMdb &head)
{
    try {
        ContenutoMdb content = leggiInProcesso(reader, path);
        content.bytePerLettera = head.jet == 3 ? 1 : 2;
        return content;
    } catch (const Failure &failure) {
        if (failure.number() != FailureNumber::Engine)
            throw;
        throw rifiuto(
            FailureNumber::Engine,
            QStringLiteral("Il file \"%1\" è danneggiato: %2. Niente è stato importato").arg(path, failure.words()));
    }
}

// The keys of a table: kept where they are whole numbers and unlike, else given anew behind the highest one.
class Chiavi
{
public:
    Chiavi(const TabellaMdb &table, const TabellaPrevista &plan) : m_active(plan.chiave >= 0)
    {
        if (!m_active)
            return;
        const size_t column = size_t(plan.colonne[plan.chiave].sorgente);
        for (const RigaMdb &row : table.righe) {
            const ValoreImportato value = valoreImportato(row[column], TipoArchivio::Intero);
            if (const auto *key = std::get_if<qint64>(&value.valore))
                m_next = std::max(m_next, *key + 1);
        }
    }

    // Whether the row's key had to be another one.
    bool assegna(StoredValue &value)
    {
        if (!m_active)
            return false;
        const auto *key = std::get_if<qint64>(&value);
        if (key && !m_used.contains(*key)) {
            m_used.insert(*key);
            return false;
        }
        m_used.insert(m_next);
        value = m_next++;
        return true;
    }

private:
    bool m_active;
    qint64 m_next = 1;
    QSet<qint64> m_used;
};

// Writes one table and keeps what was odd about it.
class ScritturaTabella
{
public:
    ScritturaTabella(const TabellaMdb &table, const TabellaPrevista &plan)
        : m_table(table), m_plan(plan), m_keys(table, plan)
    {
    }

    void run(ArchiveBuilder &builder)
    {
        QStringList names;
        for (const ColonnaPrevista &column : m_plan.colonne)
            names += column.nome;
        builder.startRows(m_plan.nome, names);
        for (const RigaMdb &row : m_table.righe)
            builder.addRow(values(row));
    }

    QStringList note() const
    {
        QStringList notes;
        for (auto odd = m_odd.constBegin(); odd != m_odd.constEnd(); ++odd)
            notes += QStringLiteral("%1.%2: %3")
                         .arg(m_plan.nome, m_plan.colonne[odd.key().first].nome, words(odd.key().second, odd.value()));
        for (auto zeros = m_zeros.constBegin(); zeros != m_zeros.constEnd(); ++zeros)
            notes += QStringLiteral("%1.%2: testi con dei caratteri nulli, forse rovinati, lasciati come sono: %3")
                         .arg(m_plan.nome, m_plan.colonne[zeros.key()].nome)
                         .arg(zeros.value());
        if (m_newKeys > 0)
            notes += QStringLiteral("%1: righe con una chiave vuota o doppia, che ora ne hanno una nuova: %2")
                         .arg(m_plan.nome)
                         .arg(m_newKeys);
        return notes;
    }

private:
    static QString words(Esito kind, int count)
    {
        switch (kind) {
        case Esito::Convertito:
            return QStringLiteral("valori di un altro tipo, convertiti: %1").arg(count);
        case Esito::Arrotondato:
            return QStringLiteral("valori con più di 15 cifre, arrotondati: %1").arg(count);
        case Esito::Rimasto:
            return QStringLiteral("valori di un altro tipo, lasciati come sono: %1").arg(count);
        case Esito::Perso:
        case Esito::Esatto:
            break;
        }
        return QStringLiteral("valori che non sono né numeri né date, lasciati vuoti: %1").arg(count);
    }

    std::vector<StoredValue> values(const RigaMdb &row)
    {
        std::vector<StoredValue> stored;
        stored.reserve(size_t(m_plan.colonne.size()));
        for (int i = 0; i < m_plan.colonne.size(); ++i) {
            const ColonnaPrevista &column = m_plan.colonne[i];
            const ValoreImportato value = valoreImportato(row[size_t(column.sorgente)], column.tipo);
            if (value.esito != Esito::Esatto && i != m_plan.chiave)
                ++m_odd[{i, value.esito}];
            if (const auto *text = std::get_if<QString>(&value.valore); text && text->contains(QChar::Null))
                ++m_zeros[i];
            stored.push_back(value.valore);
        }
        if (m_plan.chiave >= 0 && m_keys.assegna(stored[size_t(m_plan.chiave)]))
            ++m_newKeys;
        return stored;
    }

    const TabellaMdb &m_table;
    const TabellaPrevista &m_plan;
    Chiavi m_keys;
    int m_newKeys = 0;
    QMap<std::pair<int, Esito>, int> m_odd;
    QMap<int, int> m_zeros; // texts that hold a null character, by column: what a damaged disk leaves, or old programs
};

// Whoever could read and write the old file, and nobody else; the owner always may.
void dirittiDi(const QString &from, const QString &path)
{
    constexpr QFile::Permissions kNever = QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;
    QFile::setPermissions(path, (QFileInfo(from).permissions() & ~kNever) | QFile::ReadOwner | QFile::WriteOwner);
}

void scrivi(const QString &path, const QString &from, const QString &password, const ContenutoMdb &content,
            const PianoImportazione &plan, RapportoImportazione &report)
{
    ArchiveBuilder builder(path, password);
    dirittiDi(from, path); // before anything is in it
    builder.run(plan.script);
    for (const TabellaPrevista &table : plan.tabelle) {
        ScritturaTabella writing(content.tabelle[size_t(table.sorgente)], table);
        writing.run(builder);
        report.note += writing.note();
    }
    builder.finish();
}

// What goes wrong with the new archive is told with the folder in which it does: the disk may be full.
template <typename Work>
void nellaCartella(const QString &folder, const QString &task, const Work &work)
{
    try {
        work();
    } catch (const Failure &failure) {
        throw rifiuto(failure.number(), QStringLiteral("L'archivio nuovo non si può %1 nella cartella \"%2\": %3. "
                                                       "Niente è stato importato")
                                            .arg(task, folder, failure.words()));
    }
}

// Nothing counts but what the finished archive itself says.
void controlla(const QString &path, const QString &password, const ContenutoMdb &content, const PianoImportazione &plan,
               RapportoImportazione &report)
{
    Verifica check;
    QMap<QString, qint64> rows;
    nellaCartella(QDir::tempPath(), QStringLiteral("controllare"), [&] {
        check = verificaArchivio(path, password);
        if (check.esito == Verifica::Esito::InOrdine)
            rows = rowCounts(path, password);
    });
    if (check.esito != Verifica::Esito::InOrdine)
        throw rifiuto(FailureNumber::Engine,
                      QStringLiteral("L'archivio nuovo non supera il controllo: %1. Niente è stato importato")
                          .arg(check.guasti.join(QStringLiteral("; "))));
    for (const TabellaPrevista &table : plan.tabelle) {
        const qint64 read = content.tabelle[size_t(table.sorgente)].righeDichiarate;
        const qint64 written = rows.value(table.nome, -1);
        if (read != written)
            throw rifiuto(FailureNumber::Engine,
                          QStringLiteral("Nell'archivio nuovo la tabella \"%1\" ha righe: %2 invece di %3. Niente è "
                                         "stato importato")
                              .arg(table.nome)
                              .arg(written)
                              .arg(read));
        report.tabelle += {table.nome, read, written, table.nostra};
    }
}

QString nomiPortati(const RapportoImportazione &report)
{
    QStringList names;
    for (const RapportoImportazione::Tabella &table : report.tabelle)
        if (!table.nostra)
            names += table.nome;
    return names.join(QStringLiteral(", "));
}

} // namespace

RapportoImportazione importaArchivio(const QString &from, const QString &to, const QString &password,
                                     const Lettore &reader)
{
    const TestataMdb head = testataDi(from);
    rifiutaEstraneo(from, head);
    controllaPosto(to);
    controllaPassword(from, head, password);

    const ContenutoMdb content = contenutoDi(from, reader, head);
    const PianoImportazione plan = pianoImportazione(content);
    RapportoImportazione report;
    report.jet = head.jet;
    report.protetto = !head.password.isEmpty();
    report.mancanti = plan.mancanti;
    report.note = plan.note;

    const FileProvvisorio file(to);
    nellaCartella(QFileInfo(to).absolutePath(), QStringLiteral("scrivere"),
                  [&] { scrivi(file.path(), from, head.password, content, plan, report); });
    controlla(file.path(), head.password, content, plan, report);
    file.diventaNuovo();
    return report;
}

QStringList testoRapporto(const RapportoImportazione &report)
{
    QStringList lines;
    lines += QStringLiteral("Formato Jet %1, tabelle %2").arg(report.jet).arg(report.tabelle.size());
    for (const RapportoImportazione::Tabella &table : report.tabelle)
        lines += QStringLiteral("%1: righe lette %2, scritte %3").arg(table.nome).arg(table.lette).arg(table.scritte);
    if (const QString carried = nomiPortati(report); !carried.isEmpty())
        lines += QStringLiteral("Tabelle che il programma non usa, portate come sono: %1").arg(carried);
    if (!report.mancanti.isEmpty())
        lines += QStringLiteral("Tabelle che il file non ha, lasciate vuote: %1")
                     .arg(report.mancanti.join(QStringLiteral(", ")));
    for (const QString &note : report.note)
        lines += QStringLiteral("Da notare: %1").arg(note);
    if (report.protetto)
        lines += QStringLiteral("L'archivio nuovo si apre con la stessa password del vecchio");
    return lines;
}
