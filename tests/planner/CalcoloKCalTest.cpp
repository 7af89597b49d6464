#include "planner/CalcoloKCal.h"

#include "planner/PlannerTest.h"

namespace {

class CalcoloKCalTest : public PlannerTest
{
};

TEST_F(CalcoloKCalTest, AManOf170CentimetresAnd40YearsAnd70KilogramsNeeds1557AndAHalf)
{
    EXPECT_EQ(CalcolaKCal({Sesso::Maschio, "40", "170", "70"}), 1557.5);
}

TEST_F(CalcoloKCalTest, AWomanOfTheSameMeasuresNeeds1723AndAHalf)
{
    EXPECT_EQ(CalcolaKCal({Sesso::Femmina, "40", "170", "70"}), 1723.5);
}

TEST_F(CalcoloKCalTest, WithoutASexTheNeedIsZeroAndNoBoxIsRead)
{
    EXPECT_EQ(CalcolaKCal({Sesso::Nessuno, "", "alta", "boh"}), 0);
}

TEST_F(CalcoloKCalTest, FractionsAreReadWithACommaAndNothingIsRounded)
{
    EXPECT_EQ(CalcolaKCal({Sesso::Maschio, "39,5", "170,25", " 70,1 "}), 6.25 * 170.25 + 10 * 70.1 - (5 * 39.5 + 5));
    EXPECT_EQ(CalcolaKCal({Sesso::Maschio, "0", "0", "0"}), -5);
    EXPECT_EQ(CalcolaKCal({Sesso::Femmina, "0", "0", "0"}), 161);
}

TEST_F(CalcoloKCalTest, ABoxThatHoldsNoNumberIsNamed)
{
    const std::pair<DatiPersona, const char *> cases[] = {
        {{Sesso::Maschio, "40", "alta", "x"}, "Tipo non corrispondente: \"alta\" non è un numero (Altezza in cm.)"},
        {{Sesso::Femmina, "", "170", "70"}, "Tipo non corrispondente: il numero manca (Eta in anni)"},
        {{Sesso::Femmina, "40", "170", "70 Kg"}, "Tipo non corrispondente: \"70 Kg\" non è un numero (Peso in Kg)"},
    };
    for (const auto &each : cases)
        EXPECT_EQ(wordsOf([&each] { CalcolaKCal(each.first); }), QString(each.second));
}

TEST_F(CalcoloKCalTest, FiguresBeyondEveryNumberAreRefused)
{
    EXPECT_EQ(wordsOf([] {
                  CalcolaKCal({Sesso::Maschio, "40", "1E308", "70"});
              }),
              "Età, altezza e peso danno un numero troppo grande");
}

TEST_F(CalcoloKCalTest, TheQuestionHoldsTheFigureWithADecimalComma)
{
    EXPECT_EQ(DomandaKCal(1557.5), "A chi devo inserire il valore di '1557,5' KCal?");
    EXPECT_EQ(DomandaKCal(0), "A chi devo inserire il valore di '0' KCal?");
}

TEST_F(CalcoloKCalTest, TheNameChosenTellsThePersonAndTheFirstGoesBeforeTheSecond)
{
    ModNetServer &modulo = world.modulo;
    modulo.NomeScelto = "Ondira";
    EXPECT_EQ(PersonaScelta(modulo), Persona::Prima);
    modulo.NomeScelto = "Tesmo";
    EXPECT_EQ(PersonaScelta(modulo), Persona::Seconda);
    modulo.NomeScelto = "tesmo";
    EXPECT_EQ(PersonaScelta(modulo), std::nullopt);
    modulo.NomeSecondaPersona = "Ondira";
    modulo.NomeScelto = "Ondira";
    EXPECT_EQ(PersonaScelta(modulo), Persona::Prima);
}

TEST_F(CalcoloKCalTest, NobodyChosenIsNobodyAlsoWithoutAHousehold)
{
    world.modulo.NomeScelto.clear();
    EXPECT_EQ(PersonaScelta(world.modulo), std::nullopt);
    world.modulo.NomePrimaPersona.clear();
    world.modulo.NomeSecondaPersona.clear();
    EXPECT_EQ(PersonaScelta(world.modulo), std::nullopt);
}

TEST_F(CalcoloKCalTest, TheMarkerFileSwitchesFromThePublicPageToTheHouseholdsOwn)
{
    ConsultaCalcoloHtml(world.modulo);
    world.cartella.write("\\ini\\CALORIE.INI", "");
    ConsultaCalcoloHtml(world.modulo);
    EXPECT_EQ(world.programmi.started, QStringList({"Page https://www.calculator.net/calorie-calculator.html",
                                                    "Page " + world.cartella.path("\\HTML\\Calorie.html")}));
    EXPECT_FALSE(world.cartella.has("\\HTML")); // nothing writes that page
    EXPECT_EQ(world.cartella.read("\\ini\\CALORIE.INI"), "");
}

TEST_F(CalcoloKCalTest, ABrowserThatDoesNotStartIsAFailure)
{
    world.programmi.nothingIsInstalled = true;
    EXPECT_THROW(ConsultaCalcoloHtml(world.modulo), Failure);
}

} // namespace
