#include "sheet/StampaDays.h"

#include "sheet/DayRows.h"

#include <gtest/gtest.h>

#include <QFile>

void setPrintDays(TestWorld &world)
{
    world.modulo.NomePrimaPersona = "Ondira";
    world.modulo.NomeSecondaPersona = "Tesmo";
    world.orologio.when = QDateTime(QDate(2004, 3, 9), QTime(18, 5, 7));
    world.cartella.makeFolder("\\documenti");
    // Written in another order than they are printed in.
    insertSheet(world.openArchive(),
                {"'09/03/2004', 'Cena', 'Spinaci al limone', 'Spinaci', 31, 150, 46.5, 200, 62",
                 "'09/03/2004', 'Cena', 'Petto di pollo', 'Petto di pollo', 100, 120, 120, 150, 150",
                 "'09/03/2004', 'Cena', 'Petto di pollo', 'Olio di oliva', 899, 5, 44.95, 10, 89.9",
                 "'09/03/2004', 'PRANZO', 'Pasta al pomodoro', 'Pomodori pelati', 21, 100, 21, 150, 31.5",
                 "'09/03/2004', 'Pranzo', 'Pasta al pomodoro', 'Pasta di semola', 353, 70, 247.1, 90, 317.7",
                 "'09/03/2004', 'Pranzo', 'Insalata mista', 'Lattuga', 19, 80.5, 15.295, 100, 19",
                 "'09/03/2004', 'Pranzo', 'Pane', 'Pane integrale', 224, 50, 112, 70, 156.8",
                 "'09/03/2004', 'Spuntino', 'Spuntino 3', 'Pera', 35, 150, 52.5, 150, 52.5",
                 "'09/03/2004', 'Spuntino', 'Spuntino 1', 'Mela', 45, 150, 67.5, 200, 90",
                 "'09/03/2004', 'Spuntino', 'Spuntino 2', 'Yogurt', 66, 125, 82.5, 125, 82.5",
                 "'09/03/2004', 'colazione', 'Colazione 1', 'Latte', 46, 200, 92, 250, 115",
                 "'09/03/2004', 'Colazione', 'Colazione 1', 'Fette biscottate', 408, Null, 0, 40, 163.2",
                 "'09/03/2004', 'Menu', 'Torta', 'Torta', 400, 100, 400, 100, 400",
                 "'10/03/2004', 'Colazione', 'Colazione 2', "
                 "'Bevanda di soia senza zuccheri aggiunti e con calcio', 30, 200, 60, 250, 75",
                 "'10/03/2004', 'Pranzo', 'Sformato di verdure miste al forno con besciamella leggera', "
                 "'Carote tagliate a rondelle sottili e cotte al vapore', 35, 33.5, 11.725, 150, 52.5",
                 "'10/03/2004', 'Pranzo', 'Sformato di verdure miste al forno con besciamella leggera', "
                 "'Patate', 85, 100, 85, 120, 102",
                 "'11/03/2004', 'Spuntino', 'E', 'Quinto', 1, 1, 1, 1, 1",
                 "'11/03/2004', 'Spuntino', 'D', 'Quarto', 1, 1, 1, 1, 1",
                 "'11/03/2004', 'Spuntino', 'C', 'Tè & <limone>', 1, 10, 10.5, 10, 10",
                 "'11/03/2004', 'Spuntino', 'B', 'Caffè d’orzo', 1, 20, 0.1, 20, 0.2",
                 "'11/03/2004', 'Spuntino', 'A', 'Crème brûlée ≤ 9', 1, 30, 0.2, 30, 0.1",
                 "'11/03/2004', 'Cena', 'Risotto', 'Riso', 362, 60, 217.2, 80, 289.6",
                 "'11/03/2004', 'Cena', 'risotto', 'Zafferano', 310, 1, 3.1, 1, 3.1"});
}

QByteArray goldenFile(const QString &name)
{
    QFile file(CIBRA_SOURCE_DIR "/tests/golden/" + name);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "there is no golden file " << name.toStdString();
        return {};
    }
    return file.readAll();
}
