#include "pages/Alimenti.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace {

QHash<QString, QString> values()
{
    QHash<QString, QString> found;
    for (const GruppoPagina &group : AlimentiPagina())
        for (const AlimentoPagina &food : group.alimenti)
            found[QString::fromLatin1(food.nome)] = QString::fromLatin1(food.valore);
    return found;
}

TEST(AlimentiTest, TheTableHasItsFoodsGroupByGroup)
{
    QStringList groups;
    for (const GruppoPagina &group : AlimentiPagina())
        groups.append(QString::fromLatin1(group.nome) + ' ' + QString::number(group.alimenti.size()));
    EXPECT_EQ(groups, QStringList({"Cereali e derivati 14", "Dolci 13", "Frutta fresca 22", "Frutta secca 12",
                                   "Carni trasformate e conservate 14", "Formaggi 17", "Uova 3", "Latte 4",
                                   "Condimenti 7", "Verdura fresca 19", "Legumi freschi 4", "Legumi secchi 5",
                                   "Carni fresche 10", "Frattaglie 4", "Pescato 22", "Bevande 6"}));
    EXPECT_EQ(values().size(), 176);
}

TEST(AlimentiTest, EveryValueHasItsForm)
{
    const QRegularExpression form(R"(^h\d\d\.\dp\d\d\.\df\d\d\.\ds\d\d\.\df\d\d\.\dk\d\d\d$)");
    QStringList others;
    const QHash<QString, QString> all = values();
    for (auto food = all.begin(); food != all.end(); ++food)
        if (!form.match(food.value()).hasMatch())
            others.append(food.key());
    others.sort();
    EXPECT_EQ(others, QStringList({"Datteri secchi", "Tuorlo", "Uva secca"}));
}

TEST(AlimentiTest, TheFiguresOfTheTableStayWithTheirOddities)
{
    const QHash<QString, QString> all = values();
    EXPECT_EQ(all["Biscotti I colazione"], "h02.2p06.6f07.9s85.4f05.7k418");
    EXPECT_EQ(all["Zucchero"], "h00.5p00.0f00.0s99.9f00.0k392");
    EXPECT_EQ(all["Olio di semi vari"], "h00.0p00.0f99.9s00.0f00.0k900");
    EXPECT_EQ(all["Patate"], "h78.5p02.1f01.0s18.0f01.6k085");
    EXPECT_EQ(all["Tonno"], "h61.5p21.5f08.0s00.0f00.0k158");
    EXPECT_EQ(all["Pollo arrosto senza pelle"], "h59.3p28.9f10.0s00.0f00.0k205");
    EXPECT_EQ(all["Latte di vacca intero"], "h87.0p03.1f03.4s04.8f00.0k061");
    EXPECT_EQ(all["Birra"], "h99.9p00.2f00.0s03.5f00.0k034");
    EXPECT_EQ(all["Vino rosso"], "h99.9p00.0f00.0s10.7f00.0k004");
    EXPECT_EQ(all["Rape"], "h93.3p01.0f00.0s03.8f02.6k582");
    EXPECT_EQ(all["Datteri secchi"], "h17.3p02.7f00.6s63.108.7k253");
    EXPECT_EQ(all["Uva secca"], "h17.1p019f00.6s72.0f06.8k283");
    EXPECT_EQ(all["Tuorlo"], "h49.2p18.3f31.9s0.7f00.0k355");
    EXPECT_EQ(all["Vino bianco"].right(4), "k071");
    EXPECT_EQ(all["Noci fresche"].right(4), "k582");
    for (const char *drink : {"Birra", "Brandy", "Grappa", "Vino bianco", "Vino rosso", "Whisky"})
        EXPECT_EQ(all[drink].left(5), "h99.9") << drink;
}

} // namespace
