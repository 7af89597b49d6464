#include "pages/Elenchi.h"

#include "pages/Alimenti.h"
#include "pages/FileModello.h"
#include "platform/Failure.h"

#include <algorithm>
#include <vector>

namespace {

enum class Scelta
{
    Tutti,
    Senza,
    Solo,
    Doppio
};

// A group in a list, as its line in elenchi.txt tells it.
struct VoceElenco
{
    explicit VoceElenco(const QByteArray &line);

    QByteArray gruppo;
    Scelta scelta = Scelta::Tutti;
    QByteArrayList nomi;
};

Failure misspelt(const QByteArray &line)
{
    return {FailureNumber::TypeMismatch, QStringLiteral("Riga errata negli elenchi della pagina: ") + line};
}

Scelta choiceNamed(const QByteArray &word, const QByteArray &line)
{
    if (word == "senza")
        return Scelta::Senza;
    if (word == "solo")
        return Scelta::Solo;
    if (word == "doppio")
        return Scelta::Doppio;
    throw misspelt(line);
}

VoceElenco::VoceElenco(const QByteArray &line)
{
    const qsizetype colon = line.indexOf(": ");
    gruppo = line.first(colon < 0 ? line.size() : colon);
    if (colon < 0)
        return;
    const QByteArray rest = line.sliced(colon + 2);
    const qsizetype blank = rest.indexOf(' ');
    scelta = choiceNamed(rest.first(std::max<qsizetype>(blank, 0)), line);
    for (const QByteArray &name : rest.sliced(blank + 1).split(','))
        nomi.append(name.trimmed());
}

// What a food looks like in a list, one line or two. Two foods carry a stray sign, and one of them is closed by no tag.
QByteArray opzione(const AlimentoPagina &food, const QByteArray &fineRiga)
{
    const bool open = food.nome == "Arachidi tostate";
    QByteArray text;
    text.reserve(120);
    text.append("<option value=\"").append(food.valore).append("\">").append(food.nome);
    if (open || food.nome == "Ceci secchi")
        text.append("&gt;");
    if (!open)
        text.append("</option>");
    if (food.nome == "Latte di vacca parzialmente scremato") // the one name broken over two lines
        text.replace(" scremato", fineRiga + "scremato");
    return text.append(fineRiga);
}

struct OpzionePagina
{
    QByteArray nome;
    QByteArray righe;
};

// Writes group after group of the lists.
class ScrittoreElenchi
{
public:
    explicit ScrittoreElenchi(const QByteArray &fineRiga);

    void gruppo(const QByteArray &line, QByteArray &list) const;

private:
    const std::vector<OpzionePagina> &trova(const VoceElenco &voce, const QByteArray &line) const;

    QByteArray m_fineRiga;
    QHash<QByteArray, std::vector<OpzionePagina>> m_gruppi;
};

ScrittoreElenchi::ScrittoreElenchi(const QByteArray &fineRiga) : m_fineRiga(fineRiga)
{
    for (const GruppoPagina &group : AlimentiPagina()) {
        std::vector<OpzionePagina> &options = m_gruppi[group.nome];
        for (const AlimentoPagina &food : group.alimenti)
            options.push_back({food.nome, opzione(food, fineRiga)});
    }
}

const std::vector<OpzionePagina> &ScrittoreElenchi::trova(const VoceElenco &voce, const QByteArray &line) const
{
    const auto group = m_gruppi.find(voce.gruppo);
    if (group == m_gruppi.end())
        throw misspelt(line);
    const bool known = std::all_of(voce.nomi.begin(), voce.nomi.end(), [&](const QByteArray &name) {
        return std::any_of(group->begin(), group->end(), [&](const OpzionePagina &food) { return food.nome == name; });
    });
    if (!known)
        throw misspelt(line);
    return *group;
}

void ScrittoreElenchi::gruppo(const QByteArray &line, QByteArray &list) const
{
    const VoceElenco voce(line);
    list.append("// ").append(voce.gruppo).append(m_fineRiga);
    for (const OpzionePagina &food : trova(voce, line)) {
        const bool named = voce.scelta != Scelta::Tutti && voce.nomi.contains(food.nome);
        if (voce.scelta == (named ? Scelta::Senza : Scelta::Solo))
            continue;
        list.append(food.righe);
        if (named && voce.scelta == Scelta::Doppio)
            list.append(food.righe);
    }
}

} // namespace

QHash<QByteArray, QByteArray> ElenchiPagina(const QByteArray &fineRiga)
{
    QHash<QByteArray, QByteArray> lists;
    const ScrittoreElenchi scrittore(fineRiga);
    QByteArray *list = nullptr;
    perOgniRiga(TestoModello("elenchi.txt"), [&](QByteArrayView view) {
        const QByteArray line = view.toByteArray();
        if (line.isEmpty() || line.startsWith('#'))
            return;
        if (line.startsWith('['))
            list = &lists[line.sliced(1).chopped(1)];
        else if (!list)
            throw misspelt(line);
        else if (line.startsWith(' '))
            list->append(line).append(fineRiga);
        else
            scrittore.gruppo(line, *list);
    });
    // The first list has the sign as it was typed.
    lists["A1"].replace("tostate&gt;", "tostate>");
    return lists;
}
