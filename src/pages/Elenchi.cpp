#include "pages/Elenchi.h"

#include "pages/Alimenti.h"
#include "pages/Modello.h"
#include "platform/Failure.h"

#include <algorithm>
#include <utility>

namespace {

enum class Scelta
{
    Tutti,
    Senza,
    Solo,
    Doppio
};

const QString kParzialmenteScremato = QStringLiteral("Latte di vacca parzialmente scremato");
const QString kArachidi = QStringLiteral("Arachidi tostate");

// A group in a list, as its line in elenchi.txt tells it.
struct VoceElenco
{
    explicit VoceElenco(const QString &line);

    QString gruppo;
    Scelta scelta = Scelta::Tutti;
    QStringList nomi;
};

Failure misspelt(const QString &line)
{
    return {FailureNumber::TypeMismatch, QStringLiteral("Riga errata negli elenchi della pagina: ") + line};
}

Scelta choiceNamed(const QString &word, const QString &line)
{
    if (word == QStringLiteral("senza"))
        return Scelta::Senza;
    if (word == QStringLiteral("solo"))
        return Scelta::Solo;
    if (word == QStringLiteral("doppio"))
        return Scelta::Doppio;
    throw misspelt(line);
}

VoceElenco::VoceElenco(const QString &line) : gruppo(line.section(QStringLiteral(": "), 0, 0))
{
    const QString rest = line.section(QStringLiteral(": "), 1);
    if (rest.isEmpty())
        return;
    scelta = choiceNamed(rest.section(u' ', 0, 0), line);
    nomi = rest.section(u' ', 1).split(QStringLiteral(", "));
}

// Writes the options of the lists one after the other; the first of the roasted peanuts differs from all later ones.
class ScrittoreElenchi
{
public:
    ScrittoreElenchi() : m_gruppi(AlimentiPagina()) {}

    QStringList gruppo(const QString &line);

private:
    const GruppoPagina &trova(const VoceElenco &voce, const QString &line) const;
    void opzione(QStringList &lines, const AlimentoPagina &food);
    QString fine(const QString &nome);

    std::vector<GruppoPagina> m_gruppi;
    bool m_arachidiScritte = false;
};

const GruppoPagina &ScrittoreElenchi::trova(const VoceElenco &voce, const QString &line) const
{
    const auto found = std::find_if(m_gruppi.begin(), m_gruppi.end(),
                                    [&](const GruppoPagina &group) { return group.nome == voce.gruppo; });
    if (found == m_gruppi.end())
        throw misspelt(line);
    const bool known = std::all_of(voce.nomi.begin(), voce.nomi.end(), [&](const QString &name) {
        return std::any_of(found->alimenti.begin(), found->alimenti.end(),
                           [&](const AlimentoPagina &food) { return food.nome == name; });
    });
    if (!known)
        throw misspelt(line);
    return *found;
}

QStringList ScrittoreElenchi::gruppo(const QString &line)
{
    const VoceElenco voce(line);
    QStringList lines(QStringLiteral("// ") + voce.gruppo);
    for (const AlimentoPagina &food : trova(voce, line).alimenti) {
        const bool named = voce.nomi.contains(food.nome);
        if (voce.scelta == (named ? Scelta::Senza : Scelta::Solo))
            continue;
        opzione(lines, food);
        if (named && voce.scelta == Scelta::Doppio)
            opzione(lines, food);
    }
    return lines;
}

void ScrittoreElenchi::opzione(QStringList &lines, const AlimentoPagina &food)
{
    const QString option = QStringLiteral("<option value=\"") + food.valore + QStringLiteral("\">") + fine(food.nome);
    if (food.nome == kParzialmenteScremato) // one name is broken over two lines
        lines.append({option.section(u' ', 0, -2), option.section(u' ', -1)});
    else
        lines.append(option);
}

// Name and end of an option. Two foods carry a stray sign, and one of them is closed by no tag.
QString ScrittoreElenchi::fine(const QString &nome)
{
    if (nome == kArachidi)
        return nome + (std::exchange(m_arachidiScritte, true) ? QStringLiteral("&gt;") : QStringLiteral(">"));
    if (nome == QStringLiteral("Ceci secchi"))
        return nome + QStringLiteral("&gt;</option>");
    return nome + QStringLiteral("</option>");
}

} // namespace

QHash<QString, QStringList> ElenchiPagina()
{
    QHash<QString, QStringList> lists;
    ScrittoreElenchi scrittore;
    QStringList *list = nullptr;
    for (const QString &line : RigheModello(QStringLiteral("elenchi.txt"))) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'['))
            list = &lists[line.mid(1, line.size() - 2)];
        else if (!list)
            throw misspelt(line);
        else if (line.startsWith(u' '))
            list->append(line);
        else
            list->append(scrittore.gruppo(line));
    }
    return lists;
}
