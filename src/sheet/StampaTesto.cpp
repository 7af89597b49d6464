#include "sheet/StampaTesto.h"

#include "core/Helpers.h"
#include "core/Vocabulary.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/TextFile.h"
#include "sheet/StampaGiorno.h"

namespace {

const QString kRule = QStringLiteral("*---------------------------------------------------------"
                                     "*---------------------------------------------------------* ");

QString titleOf(Sezione meal)
{
    switch (meal) {
    case Sezione::Colazione:
        return QStringLiteral("|                       Colazione                         "
                              "|                     Colazione                           | ");
    case Sezione::Spuntino:
        return QStringLiteral("|                       Spuntino                          "
                              "|                     Spuntino                            | ");
    case Sezione::Pranzo:
        return QStringLiteral("|                       Pranzo                            "
                              "|                      Pranzo                             | ");
    case Sezione::Cena:
        break;
    }
    return QStringLiteral("|                       Cena                              "
                          "|                      Cena                               | ");
}

class TextPage
{
public:
    TextPage(ModNetServer &modulo, const QString &DataGiorno, const QString &file)
        : m_modulo(modulo), m_dayText(DataGiorno), m_day(modulo, DataGiorno), m_file(file, TextEncoding::CodePage)
    {
    }
    void write();

private:
    void line(const QString &text) { m_file.line("     " + text); }
    void head();
    void mealTitle(Sezione meal);
    void mealEnd();
    void breakfast();
    void snacks();
    void dishes();
    void dishGroup();
    void blankLineOfBox();
    void foot();

    ModNetServer &m_modulo;
    QString m_dayText;
    StampaGiorno m_day;
    TextWriter m_file;
};

void TextPage::write()
{
    head();
    for (const Sezione meal : kSezioni) {
        if (!m_day.openMeal(meal))
            continue;
        mealTitle(meal);
        if (meal == Sezione::Colazione)
            breakfast();
        else if (meal == Sezione::Spuntino)
            snacks();
        else
            dishes();
        mealEnd();
    }
    foot();
    m_file.close();
}

// The two calorie figures are part of the form; they do not follow the targets.
void TextPage::head()
{
    line(kRule);
    line("|                   Cibra per " + m_modulo.NomePrimaPersona +
         "    Kcal 1.100        |                     Cibra " + m_modulo.NomeSecondaPersona +
         "  Kcal 1.500             | ");
    line(kRule);
    line("|                                           Cibra giornaliera del " + m_dayText +
         "                                        | ");
}

void TextPage::mealTitle(Sezione meal)
{
    line(kRule);
    line(titleOf(meal));
    line(kRule);
}

void TextPage::mealEnd()
{
    line(kRule);
    line({});
}

void TextPage::breakfast()
{
    m_day.forEachRow(
        [&] { line("|   " + Allinea(m_day.foodOfFirst(), 53) + " |  " + Allinea(m_day.foodOfSecond(), 54) + " | "); });
}

// The right column reads 10 on all three lines.
void TextPage::snacks()
{
    m_day.forThreeSnacks([&](const QString &ora) {
        line("|   " + Allinea("Spuntino delle ore " + ora + ' ' + m_day.foodOfFirst(), 53) + " |  " +
             Allinea("Spuntino delle ore 10 " + m_day.foodOfSecond(), 54) + " | ");
    });
}

void TextPage::dishes()
{
    while (!m_day.atEnd())
        dishGroup();
}

void TextPage::dishGroup()
{
    const QString dish = Allinea(m_day.dish(), 54);
    line("|  " + dish + " |  " + dish + " | ");
    blankLineOfBox();
    m_day.forEachRowOfDish([&] {
        line("|     " + Allinea(m_day.foodOfFirst(), 51) + " |    " + Allinea(m_day.foodOfSecond(), 52) + " | ");
    });
    blankLineOfBox();
}

void TextPage::blankLineOfBox()
{
    line("|  " + Allinea(" ", 54) + " |  " + Allinea({}, 54) + " | ");
}

// The totals are not aligned: the right edge of their line moves with their length.
void TextPage::foot()
{
    line(kRule);
    line("|    totale giornaliero KCal." + TestoNumero(m_day.totalOfFirst()) +
         "                         |  totale giornaliero KCal." + TestoNumero(m_day.totalOfSecond()) +
         "                           | ");
    line(kRule);
    line("      ");
    line(" " + kIndirizzoAutore + "  - stampa del " + TestoDataOra(m_modulo.mondo.orologio.now()));
}

} // namespace

void StampaTesto(ModNetServer &modulo, const QString &DataGiorno)
{
    const QString file = FileStampa(modulo, DataGiorno, ".txt");
    TextPage(modulo, DataGiorno, file).write();
    modulo.mondo.programmi.start(ProgramKind::TextViewer, file);
}
