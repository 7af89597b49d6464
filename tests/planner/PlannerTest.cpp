#include "planner/PlannerTest.h"

PlannerTest::PlannerTest() : dati(world.openArchive())
{
    world.setHousehold();
}

void PlannerTest::addDish(const QString &Piatto, const QString &tipo, const QString &Categoria, bool Preferito)
{
    insertRows(dati, "Sostituisci", "Piatto, tipo, Categoria, Preferito, Ordine",
               {QStringLiteral("'%1', '%2', '%3', %4, 0").arg(Piatto, tipo, Categoria, Preferito ? "True" : "False")});
}

void PlannerTest::fillCatalogue()
{
    addDish("Caffelatte", "Colazione", "Cereali");
    addDish("Yogurt e miele", "Colazione", "Cereali");
    addDish("Colazione 1", "Colazione", "Cereali");
    addDish("Mela", "Spuntino", "Frutta");
    addDish("Pera", "Spuntino", "Frutta");
    addDish("Spuntino 1", "Spuntino", "Frutta");
    addDish("Manzo", "Menu", "Carne", true);
    addDish("Pollo", "Menu", "Carne");
    addDish("Orata", "Menu", "Pesce");
    addDish("Sogliola", "Menu", "Pesce");
    addDish("Toast", "Menu", "Panino - Pizza");
    addDish("Pizza", "Menu", "Panino - Pizza");
    addDish("Ravioli", "Menu", "Pasta - Minestra");
    addDish("Zuppa", "Menu", "Pasta - Minestra");
    addDish("Paella", "Menu", "Piatto Unico");
    addDish("Cuscus", "Menu", "Piatto unico");
    addDish("Fagiolini", "", "Contorno");
    addDish("Spinaci", "", "Contorno");
    addDish("Rosetta", "", "Pane");
    addDish("Grissini", "", "Pane");
}

SceltaMenu PlannerTest::choice(const QString &from, const QString &to) const
{
    SceltaMenu scelta;
    scelta.Text1 = from;
    scelta.Text2 = to;
    scelta.Freq.fill("1");
    scelta.Freq[2] = scelta.Freq[7] = "7";
    return scelta;
}

void PlannerTest::scriptReversedShuffle()
{
    world.dado.script({0.95, 0.85, 0.75, 0.65, 0.55, 0.45, 0.35, 0.25, 0.15, 0.05});
}

QStringList PlannerTest::column(const QString &name)
{
    return rowsOf(dati, "SELECT Menu." + name + " From Menu");
}

QString PlannerTest::wordsOf(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const Failure &failure) {
        return failure.words();
    }
    return {};
}
