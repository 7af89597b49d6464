#include "pages/Modello.h"

#include "core/Indirizzi.h"
#include "pages/Elenchi.h"
#include "pages/FileModello.h"
#include "platform/Failure.h"
#include "platform/text/CodePage.h"

#include <QHash>

namespace {

constexpr qsizetype kRoom = 150'000; // bytes, above the size of the whole page

// Expands the files into one text, line by line in the order of the page.
class Stesura
{
public:
    explicit Stesura(Pagina pagina)
        : m_pagina(pagina == Pagina::Intera ? "intera" : "breve"),
          m_fineRiga(pagina == Pagina::Intera ? " \r\n" : "  \r\n")
    {
    }

    QByteArray testo();

private:
    void usa(const QByteArray &file, const QByteArray &argomento);
    void comando(const QByteArray &line);
    void elenco(const QByteArray &name);
    const QByteArray &modello(const QByteArray &file);

    QByteArray m_pagina;
    QByteArray m_fineRiga;
    QHash<QByteArray, QByteArray> m_elenchi; // filled when the first is asked for
    QHash<QByteArray, QByteArray> m_modelli;
    bool m_altraPagina = false; // inside a part for the other page
    QByteArray m_testo;
};

QByteArray Stesura::testo()
{
    m_testo.reserve(kRoom);
    usa("pagina.html", {});
    return m_testo;
}

void Stesura::usa(const QByteArray &file, const QByteArray &argomento)
{
    QByteArray text = modello(file);
    if (!argomento.isEmpty())
        text.replace("##", argomento);
    perOgniRiga(text, [this](QByteArrayView line) {
        if (line.startsWith('@'))
            comando(line.toByteArray());
        else if (!m_altraPagina)
            m_testo.append(line).append(m_fineRiga);
    });
}

const QByteArray &Stesura::modello(const QByteArray &file)
{
    QByteArray &text = m_modelli[file];
    if (text.isNull())
        text = TestoModello(file).replace("{PaginaPubblica}", toWindows1252(kPaginaCalorie));
    return text;
}

void Stesura::comando(const QByteArray &line)
{
    const QByteArrayList words = line.split(' ');
    const QByteArray &word = words[0];
    const QByteArray argument = words.value(1);
    if (word == "@se")
        m_altraPagina = argument != m_pagina;
    else if (word == "@fine")
        m_altraPagina = false;
    else if (m_altraPagina)
        return;
    else if (word == "@elenco")
        elenco(argument);
    else
        usa(argument, words.mid(2).join(' '));
}

void Stesura::elenco(const QByteArray &name)
{
    if (m_elenchi.isEmpty())
        m_elenchi = ElenchiPagina(m_fineRiga);
    if (!m_elenchi.contains(name))
        throw Failure(FailureNumber::TypeMismatch, QStringLiteral("La pagina non ha l'elenco ") + name);
    m_testo.append(m_elenchi[name]);
}

} // namespace

QByteArray TestoPagina(Pagina pagina)
{
    return Stesura(pagina).testo();
}
