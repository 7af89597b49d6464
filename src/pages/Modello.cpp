#include "pages/Modello.h"

#include "core/Indirizzi.h"
#include "pages/Elenchi.h"
#include "platform/Failure.h"

#include <QFile>

namespace {

// Expands the files into one text, line by line in the order of the page.
class Stesura
{
public:
    explicit Stesura(Pagina pagina)
        : m_pagina(pagina == Pagina::Intera ? QStringLiteral("intera") : QStringLiteral("breve")),
          m_fineRiga(pagina == Pagina::Intera ? QStringLiteral(" \r\n") : QStringLiteral("  \r\n")),
          m_elenchi(ElenchiPagina())
    {
    }

    QString testo();

private:
    void usa(const QString &file, const QString &text);
    void comando(const QString &line);
    void elenco(const QString &name);
    void riga(const QString &line) { m_testo += line + m_fineRiga; }

    QString m_pagina;
    QString m_fineRiga;
    QHash<QString, QStringList> m_elenchi;
    QHash<QString, QStringList> m_file;
    bool m_altraPagina = false; // inside a part for the other page
    QString m_testo;
};

QString Stesura::testo()
{
    m_testo.reserve(200'000);
    usa(QStringLiteral("pagina.html"), {});
    return m_testo;
}

void Stesura::usa(const QString &file, const QString &text)
{
    if (!m_file.contains(file))
        m_file[file] = RigheModello(file);
    const QStringList lines = m_file[file];
    for (QString line : lines) {
        line.replace(QStringLiteral("##"), text);
        if (line.startsWith(u'@'))
            comando(line);
        else if (!m_altraPagina)
            riga(line);
    }
}

void Stesura::comando(const QString &line)
{
    const QString word = line.section(u' ', 0, 0);
    const QString argument = line.section(u' ', 1, 1);
    if (word == QStringLiteral("@se"))
        m_altraPagina = argument != m_pagina;
    else if (word == QStringLiteral("@fine"))
        m_altraPagina = false;
    else if (m_altraPagina)
        return;
    else if (word == QStringLiteral("@elenco"))
        elenco(argument);
    else
        usa(argument, line.section(u' ', 2));
}

void Stesura::elenco(const QString &name)
{
    if (!m_elenchi.contains(name))
        throw Failure(FailureNumber::TypeMismatch, QStringLiteral("La pagina non ha l'elenco ") + name);
    for (const QString &line : m_elenchi.value(name))
        riga(line);
}

} // namespace

QString TestoPagina(Pagina pagina)
{
    return Stesura(pagina).testo().replace(QStringLiteral("{PaginaPubblica}"), kPaginaCalorie);
}

QStringList RigheModello(const QString &file)
{
    QFile resource(QStringLiteral(":/pagina/") + file);
    if (!resource.open(QIODevice::ReadOnly))
        throw Failure::usual(FailureNumber::FileNotFound, resource.fileName());
    QStringList lines = QString::fromUtf8(resource.readAll()).split(u'\n');
    lines.removeLast(); // each line has its end
    return lines;
}
