#include "platform/text/Numbers.h"
#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <vector>

namespace {

struct Shown
{
    double number;
    QString text;
};

struct Typed
{
    QString text;
    double number;
};

FailureNumber failureOf(double (*read)(const QString &), const QString &text)
{
    try {
        const double number = read(text);
        ADD_FAILURE() << '"' << text.toStdString() << "\" was read as " << number;
    } catch (const Failure &failure) {
        return failure.number();
    }
    return FailureNumber::Engine;
}

} // namespace

TEST(TestoNumeroTest, ShowsFifteenDigitsWithADecimalComma)
{
    const std::vector<Shown> cases = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-3, "-3"},
        {1480.5, "1480,5"},
        {-0.25, "-0,25"},
        {1500, "1500"},
        {112.00000000000001, "112"},
        {0.1 + 0.2, "0,3"},
        {250.0 / 100 * 80, "200"},
        {100.0 / 3, "33,3333333333333"},
        {2.0 / 3, "0,666666666666667"},
        {123456789012345.0, "123456789012345"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {-1.5e20, "-1,5E+20"},
        {1234567890123456789.0, "1,23456789012346E+18"},
        {0.0001, "0,0001"},
        {0.00001, "1E-05"},
        {0.000012345, "1,2345E-05"},
        {1e300, "1E+300"},
        {1e-300, "1E-300"},
    };
    for (const Shown &shown : cases)
        EXPECT_EQ(TestoNumero(shown.number), shown.text);
}

TEST(TestoNumeroTest, HasAPointInStatements)
{
    EXPECT_EQ(NumeroPerIstruzione(1480.5), "1480.5");
    EXPECT_EQ(NumeroPerIstruzione(-0.000012345), "-1.2345E-05");
    EXPECT_EQ(NumeroPerIstruzione(1500), "1500");
}

TEST(TestoNumeroTest, IsReadBackAsTheSameFifteenDigits)
{
    for (const double number : {1480.5, 0.3, -33.3333333333333, 1e15, 1.23456789012346e18, 1e-5, 1100.0, 1.1}) {
        EXPECT_EQ(NumeroDaTesto(TestoNumero(number)), number);
        EXPECT_EQ(NumeroCampo(TestoNumero(number)), number);
    }
}

TEST(NumeroDaTestoTest, ReadsWhatAnItalianTypes)
{
    const std::vector<Typed> cases = {
        {"7", 7},
        {" 7 ", 7},
        {"-3", -3},
        {"+3", 3},
        {"12,5", 12.5},
        {"12.5", 12.5},
        {"1.5", 1.5},
        {"1.10", 1.1},
        {"1.1000", 1.1},
        {"1.100", 1100},
        {"12.345.678", 12345678},
        {"1.100,5", 1100.5},
        {"-1.100,5", -1100.5},
        {"1.234.567,5", 1234567.5},
        {"1234.500", 1234.5}, // no group has four digits
        {"0.500", 0.5},       // no thousands begin with a zero
        {".5", 0.5},
        {",5", 0.5},
        {"5,", 5},
        {"5.", 5},
        {"0012", 12},
        {"1E3", 1000},
        {"1e-2", 0.01},
        {"1,5E+2", 150},
        {"1.234E3", 1234}, // a point before an exponent is a decimal one
    };
    for (const Typed &typed : cases)
        EXPECT_EQ(NumeroDaTesto(typed.text), typed.number) << typed.text.toStdString();
}

TEST(NumeroDaTestoTest, RefusesWhatIsNoNumber)
{
    for (const char *text : {"",        " ",     "abc",   "12a",       "a12",     "1.1.1", "1.1000.000", "1,2,3",
                             "1,100.5", "1.1,5", "1..5",  "-",         "+",       ",",     ".",          "--3",
                             "- 3",     "3-",    "1 100", "E3",        "1E",      "1E+",   "1E1.5",      "1E999",
                             "0x10",    "nan",   "inf",   "1.100E3E2", "\xD9\xA3" /* an Arabic three */})
        EXPECT_EQ(failureOf(NumeroDaTesto, QString::fromUtf8(text)), FailureNumber::TypeMismatch) << text;
}

TEST(NumeroDaTestoTest, TellsTheUserThatTheTypeDoesNotFit)
{
    try {
        NumeroDaTesto("abc");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.words(), "Tipo non corrispondente: \"abc\" non è un numero");
    }
}

TEST(NumeroCampoTest, TakesCommaOrPointAsTheDecimalSignAndKnowsNoThousands)
{
    const std::vector<Typed> cases = {
        {"1.100", 1.1}, {"1,100", 1.1}, {"1480.5", 1480.5}, {"1480,5", 1480.5},
        {" 80 ", 80},   {"-2,5", -2.5}, {".5", 0.5},        {"1E3", 1000},
    };
    for (const Typed &typed : cases)
        EXPECT_EQ(NumeroCampo(typed.text), typed.number) << typed.text.toStdString();
    for (const char *text : {"", "abc", "1.100,5", "1.234.567", "1,2,3", "1 2"})
        EXPECT_EQ(failureOf(NumeroCampo, text), FailureNumber::TypeMismatch) << text;
}

TEST(ValTest, TakesTheLeadingNumberOfAnyText)
{
    const std::vector<Typed> cases = {
        {"41", 41},   {"41 kg", 41}, {"  41", 41}, {"41.5", 41.5}, {"41,5", 41},  {"-3x", -3}, {"+3", 3},
        {"", 0},      {"abc", 0},    {"-", 0},     {".", 0},       {".5.5", 0.5}, {"5.", 5},   {"1.100", 1.1},
        {"12E3", 12}, {"\r\n", 0},   {"x41", 0},   {"- 3", 0},     {"007", 7},
    };
    for (const Typed &typed : cases)
        EXPECT_EQ(Val(typed.text), typed.number) << typed.text.toStdString();
    EXPECT_EQ(Val(QString(400, u'9')), 0) << "a number too large for any is none";
}

TEST(NumbersTest, DoNotFollowTheLocaleOfTheMachine)
{
    struct CommaPoint : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaPoint));
    EXPECT_EQ(TestoNumero(1234567.5), "1234567,5");
    EXPECT_EQ(NumeroPerIstruzione(1234567.5), "1234567.5");
    EXPECT_EQ(NumeroDaTesto("1234567,5"), 1234567.5);
    EXPECT_EQ(Val("1234567.5"), 1234567.5);
    std::locale::global(before);
}
