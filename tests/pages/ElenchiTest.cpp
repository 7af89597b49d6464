// The lists as they stand in the written page.
#include "pages/Alimenti.h"
#include "pages/PaginaScritta.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace {

struct Opzione
{
    QString gruppo;
    QString valore;
    QString testo; // as written, without the closing tag
    bool chiusa;
};

struct ElencoScritto
{
    QString nome;
    QStringList gruppi;
    QStringList altreRighe; // neither a group nor an option
    QList<Opzione> opzioni;

    QStringList testi(const QString &gruppo = {}) const
    {
        QStringList texts;
        for (const Opzione &opzione : opzioni)
            if (gruppo.isEmpty() || opzione.gruppo == gruppo)
                texts.append(opzione.testo);
        return texts;
    }
};

void addOption(ElencoScritto &list, const QString &line)
{
    static const QRegularExpression kOption("^<option value=\"([^\"]*)\">([^<]*)(</option>)?$");
    const QRegularExpressionMatch match = kOption.match(line);
    ASSERT_TRUE(match.hasMatch()) << line.toStdString();
    list.opzioni.append({list.gruppi.value(list.gruppi.size() - 1), match.captured(1), match.captured(2),
                         !match.captured(3).isEmpty()});
}

void closeOnSecondLine(Opzione &option)
{
    EXPECT_FALSE(option.chiusa) << option.testo.toStdString();
    option.testo += " / scremato";
    option.chiusa = true;
}

void addLine(ElencoScritto &list, const QString &line)
{
    if (line.startsWith("// "))
        list.gruppi.append(line.mid(3));
    else if (line.startsWith("<option"))
        addOption(list, line);
    else if (line == "scremato</option>")
        closeOnSecondLine(list.opzioni.last());
    else
        list.altreRighe.append(line);
}

QList<ElencoScritto> readLists()
{
    static const QRegularExpression kOpens("<select size=\"1\" name=\"([A-D][1-7])\">$");
    QList<ElencoScritto> lists;
    bool inside = false;
    for (const QString &line : lines(paginaIntera(), " ")) {
        const QRegularExpressionMatch opens = kOpens.match(line);
        if (opens.hasMatch())
            lists.append(ElencoScritto{opens.captured(1), {}, {}, {}});
        else if (line.startsWith("</select>"))
            inside = false;
        else if (inside)
            addLine(lists.last(), line);
        inside = inside || opens.hasMatch();
    }
    return lists;
}

const QList<ElencoScritto> &elenchi()
{
    static const QList<ElencoScritto> lists = readLists();
    return lists;
}

const ElencoScritto &elenco(const QString &nome)
{
    for (const ElencoScritto &list : elenchi())
        if (list.nome == nome)
            return list;
    ADD_FAILURE() << "no list " << nome.toStdString();
    return elenchi().first();
}

// Lists with many groups, named apart from the table of lists below.
const QString kGruppiDiB3 =
    "Verdura fresca, Legumi freschi, Legumi secchi, Cereali e derivati, Carni fresche, Frattaglie, "
    "Carni trasformate e conservate, Formaggi, Uova, Pescato";
const QString kGruppiDiD3 = "Pescato, Verdura fresca, Legumi freschi, Legumi secchi, Carni fresche, Frattaglie, Carni "
                            "trasformate e conservate, Formaggi, Uova";
const QString kTuttiIGruppi =
    "Cereali e derivati, Dolci, Frutta fresca, Frutta secca, Carni trasformate e conservate, Formaggi, Uova, Latte, "
    "Condimenti, Verdura fresca, Legumi freschi, Legumi secchi, Carni fresche, Frattaglie, Pescato, Bevande";

TEST(ElenchiTest, EveryListHasItsGroupsInOrderAndItsNumberOfOptions)
{
    QStringList found;
    for (const ElencoScritto &list : elenchi())
        found.append(QString("%1 %2 %3").arg(list.nome).arg(list.opzioni.size()).arg(list.gruppi.join(", ")));
    const QStringList expected = {
        "A1 67 Cereali e derivati, Dolci, Frutta fresca, Frutta secca, Carni trasformate e conservate",
        "A2 64 Frutta fresca, Frutta secca, Carni trasformate e conservate, Formaggi, Uova",
        "A3 38 Latte, Dolci, Formaggi, Uova",
        "A4 7 Condimenti",
        "B1 22 Frutta fresca",
        "B2 5 Cereali e derivati",
        "B3 107 " + kGruppiDiB3,
        "B4 78 Carni fresche, Frattaglie, Carni trasformate e conservate, Formaggi, Uova, Condimenti, Pescato",
        "B5 61 Cereali e derivati, Frutta fresca, Frutta secca, Formaggi, Condimenti",
        "B6 6 Bevande",
        "B7 176 " + kTuttiIGruppi,
        "C1 18 Cereali e derivati, Dolci, Frutta fresca",
        "C2 67 Frutta fresca, Frutta secca, Carni trasformate e conservate, Formaggi, Uova",
        "C3 32 Formaggi, Carni trasformate e conservate",
        "C4 41 Formaggi, Carni trasformate e conservate, Uova, Condimenti",
        "D1 38 Frutta fresca, Frutta secca, Latte",
        "D2 43 Cereali e derivati, Carni trasformate e conservate, Latte, Formaggi, Uova",
        "D3 99 " + kGruppiDiD3,
        "D4 71 Cereali e derivati, Carni fresche, Frattaglie, Carni trasformate e conservate, Formaggi, Pescato",
        "D5 7 Condimenti",
        "D6 65 Dolci, Frutta fresca, Frutta secca, Formaggi",
        "D7 6 Bevande",
    };
    EXPECT_EQ(found, expected);
}

TEST(ElenchiTest, ThereAre1118OptionsInAll)
{
    qsizetype options = 0;
    for (const ElencoScritto &list : elenchi())
        options += list.opzioni.size();
    EXPECT_EQ(options, 1118);
}

QString written(const QString &food)
{
    if (food == "Latte di vacca parzialmente scremato")
        return "Latte di vacca parzialmente / scremato";
    return food == "Arachidi tostate" || food == "Ceci secchi" ? food + "&gt;" : food;
}

// The foods of a group in their usual order, each of them at most as often as it stands there.
TEST(ElenchiTest, EveryOptionBelongsToItsGroupBearsItsValueAndKeepsItsOrder)
{
    for (const ElencoScritto &list : elenchi()) {
        qsizetype checked = 0;
        for (const GruppoPagina &group : AlimentiPagina()) {
            QStringList expected;
            for (const AlimentoPagina &food : group.alimenti)
                for (const Opzione &option : list.opzioni)
                    if (option.gruppo == group.nome && option.valore == food.valore &&
                        QString(option.testo).replace("tostate>", "tostate&gt;") ==
                            written(QString::fromLatin1(food.nome)))
                        expected.append(option.testo);
            EXPECT_EQ(list.testi(QString::fromLatin1(group.nome)), expected) << list.nome.toStdString();
            checked += expected.size();
        }
        EXPECT_EQ(checked, list.opzioni.size()) << list.nome.toStdString();
    }
}

TEST(ElenchiTest, TheListOfAllFoodsHasEachOnce)
{
    QStringList all;
    for (const GruppoPagina &group : AlimentiPagina())
        for (const AlimentoPagina &food : group.alimenti)
            all.append(written(QString::fromLatin1(food.nome)));
    EXPECT_EQ(elenco("B7").testi(), all);
}

TEST(ElenchiTest, FoodsStandTwiceOnlyInTheListsThatAreLongerThanTheirGroups)
{
    QStringList twice;
    for (const ElencoScritto &list : elenchi()) {
        QStringList texts = list.testi();
        while (!texts.isEmpty()) {
            const QString text = texts.takeFirst();
            if (texts.contains(text))
                twice.append(list.nome + ' ' + text);
        }
    }
    EXPECT_EQ(twice, QStringList({"A1 Cioccolato al latte", "A3 Fior di latte", "B4 Fior di latte", "C3 Fior di latte",
                                  "D3 Fior di latte", "D6 Fior di latte"}));
}

TEST(ElenchiTest, OnlyTheRoastedPeanutsAreLeftOpen)
{
    QStringList open;
    for (const ElencoScritto &list : elenchi())
        for (const Opzione &option : list.opzioni)
            if (!option.chiusa)
                open.append(list.nome + ' ' + option.testo);
    EXPECT_EQ(open, QStringList({"A1 Arachidi tostate>", "A2 Arachidi tostate&gt;", "B5 Arachidi tostate&gt;",
                                 "B7 Arachidi tostate&gt;", "C2 Arachidi tostate&gt;", "D1 Arachidi tostate&gt;",
                                 "D6 Arachidi tostate&gt;"}));
}

TEST(ElenchiTest, TheChickpeasCarryAStraySign)
{
    for (const char *name : {"B3", "B7", "D3"})
        EXPECT_EQ(elenco(name).testi("Legumi secchi").first(), "Ceci secchi&gt;") << name;
}

TEST(ElenchiTest, EveryListEndsInAStrayBlankAndSomeNameTheFreshFruitWithoutSlashes)
{
    for (const ElencoScritto &list : elenchi()) {
        const bool named = QStringList({"A1", "A3", "B5", "C1", "D6"}).contains(list.nome);
        EXPECT_EQ(list.altreRighe, named ? QStringList({" Frutta fresca", "&nbsp;"}) : QStringList("&nbsp;"))
            << list.nome.toStdString();
    }
}

TEST(ElenchiTest, AfterTheFreshFruitOfTheBreakfastsThirdListNoFoodFollows)
{
    EXPECT_TRUE(paginaIntera().contains("Tuorlo</option> \r\n Frutta fresca \r\n&nbsp; \r\n</select></td> \r\n"
                                        "<td align=\"center\"><input type=\"text\" name=\"A3g\""));
}

} // namespace
