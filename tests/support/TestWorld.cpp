#include "support/TestWorld.h"

#include <gtest/gtest.h>

TestWorld::TestWorld()
    : orologio(QDateTime(QDate(2025, 3, 2), QTime(10, 20, 30))),
      mondo{ProgramFolder(cartella.path()), dialoghi, programmi, orologio, dado, schermo}, modulo(mondo, schermate)
{
    modulo.DataAvvio = QStringLiteral("02/03/2025");
}

Connection &TestWorld::openArchive()
{
    const QString path = cartella.path(QStringLiteral("Cibra.Mdb"));
    makeTestArchive(path);
    modulo.ConnessioneDati = std::make_unique<Connection>();
    const OpenResult result = modulo.ConnessioneDati->Open(path);
    EXPECT_TRUE(result) << result.words.toStdString();
    modulo.PercorsoDbDati = path;
    modulo.NomeDbDati = QStringLiteral("Cibra.Mdb");
    modulo.CartellaDbDati = cartella.path();
    return *modulo.ConnessioneDati;
}

void TestWorld::setHousehold()
{
    cartella.write(QStringLiteral("\\ini\\Anagrafica.txt"), "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");
    modulo.NomePrimaPersona = QStringLiteral("Ondira");
    modulo.NomeSecondaPersona = QStringLiteral("Tesmo");
    modulo.KcalPrimaPersona = QStringLiteral("1100");
    modulo.KcalSecondaPersona = QStringLiteral("1500");
}
