#include "sheet/StampaHtml.h"

#include "core/Vocabulary.h"
#include "platform/text/Numbers.h"
#include "platform/text/TextFile.h"
#include "sheet/StampaGiorno.h"

namespace {

struct MealTitle
{
    const char *comment;
    const char *name;
};

MealTitle titleOf(Sezione meal)
{
    switch (meal) {
    case Sezione::Colazione:
        return {"<!-- riga descrizionetipo  colazione   -------------------------- --> ", "Colazione"};
    case Sezione::Spuntino:
        return {"<!-- riga spuntino   -------------------------- --> ", "Spuntino"};
    case Sezione::Pranzo:
        return {"<!-- riga descrizionetipo pranzo   -------------------------- --> ", "Pranzo"};
    case Sezione::Cena:
        break;
    }
    return {"<!-- riga descrizionetipo  cena    -------------------------- --> ", "Cena"};
}

// Lunch and dinner differ by a few signs; lunch leaves the row of its dish open.
struct DishLayout
{
    const char *dishLeftEnd;
    bool closesDishRow;
    const char *foodLeftEnd;
    const char *foodRightEnd;
};
constexpr DishLayout kLunch{" </td> ", false, " </td> ", "</td> "};
constexpr DishLayout kDinner{"</td> ", true, "</td> ", ".</td> "};

class HtmlPage
{
public:
    HtmlPage(ModNetServer &modulo, const QString &DataGiorno, const QString &file)
        : m_modulo(modulo), m_dayText(DataGiorno), m_day(modulo, DataGiorno), m_file(file, TextEncoding::CodePage)
    {
    }
    void write();

private:
    void line(const QString &text) { m_file.line(text); }
    void head();
    void tableHead();
    void mealTitle(Sezione meal);
    void breakfast();
    void snacks();
    void dishes(const DishLayout &layout);
    void dishGroup(const DishLayout &layout);
    void whiteRow();
    void foot();

    ModNetServer &m_modulo;
    QString m_dayText;
    StampaGiorno m_day;
    TextWriter m_file;
};

void HtmlPage::write()
{
    head();
    tableHead();
    for (const Sezione meal : kSezioni) {
        if (!m_day.openMeal(meal))
            continue;
        mealTitle(meal);
        if (meal == Sezione::Colazione)
            breakfast();
        else if (meal == Sezione::Spuntino)
            snacks();
        else
            dishes(meal == Sezione::Pranzo ? kLunch : kDinner);
    }
    foot();
    m_file.close();
}

void HtmlPage::head()
{
    line("<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
         "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\"> ");
    line("<html xmlns=\"http://www.w3.org/1999/xhtml\"> ");
    line("<head> ");
    line("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" /> ");
    line("<title>Documento senza titolo</title> ");
    line("<style type=\"text/css\"> ");
    line("body table tr td { ");
    line(" font-weight: bold; ");
    line(" font-family: Tahoma, Geneva, sans-serif; ");
    line("} ");
    line("</style> ");
    line("</head> ");
    line("<body > ");
}

// The two calorie figures are part of the form; they do not follow the targets.
void HtmlPage::tableHead()
{
    line("<p  ><h1 align=\"center\">Cibra giornaliera del " + m_dayText + "</h1></p> ");
    line("<br /><br /> ");
    line("<table align=\"center\" width=\"70%\" border=\"1\"> ");
    line("<tr> ");
    line("<td align=\"center\" width=\"50%\" bgcolor=\"#94ACC9\"><h3>Cibra per " + m_modulo.NomePrimaPersona +
         "    Kcal 1.100</h3></td> ");
    line("<td align=\"center\"  width=\"50%\"  bgcolor=\"#94ACC9\"><h3>Cibra per " + m_modulo.NomeSecondaPersona +
         "    Kcal 1.500</h3></td> ");
    line("</tr> ");
}

void HtmlPage::mealTitle(Sezione meal)
{
    const MealTitle title = titleOf(meal);
    line(title.comment);
    line("<tr> ");
    line(QString("<td colspan=\"2\" align=\"center\" bgcolor=\"#FF9900\" >") + title.name + "</td> ");
    line("</tr> ");
}

void HtmlPage::breakfast()
{
    m_day.forEachRow([&] {
        line("<tr> ");
        line("<td align=\"center\" width=\"50%\">" + m_day.foodOfFirst() + "</td> ");
        line("<td align=\"center\"  width=\"50%\">" + m_day.foodOfSecond() + "</td> ");
        line("</tr> ");
    });
    whiteRow();
}

void HtmlPage::snacks()
{
    m_day.forThreeSnacks([&](const QString &ora) {
        const QString start = "Spuntino delle ore " + ora + ' ';
        line("<tr> ");
        line("<td align=\"center\" width=\"50%\">" + start + m_day.foodOfFirst() + " </td> ");
        line("<td align=\"center\"  width=\"50%\">" + start + m_day.foodOfSecond() + "</td> ");
        line("</tr> ");
    });
    whiteRow();
}

void HtmlPage::dishes(const DishLayout &layout)
{
    while (!m_day.atEnd())
        dishGroup(layout);
}

void HtmlPage::dishGroup(const DishLayout &layout)
{
    const QString dish = m_day.dish();
    line("<!-- titolo piatto   ------------------------------------------------------------------------------- --> ");
    line("<tr> ");
    line("<td align=\"left\" width=\"50%\">&emsp;" + dish + layout.dishLeftEnd);
    line("<td align=\"left\"  width=\"50%\">&emsp;" + dish + "</td> ");
    if (layout.closesDishRow)
        line("</tr> ");
    m_day.forEachRowOfDish([&] {
        line("<!-- riga descrizione piatto   "
             "------------------------------------------------------------------------------- --> ");
        line("<tr> ");
        line("<td align=\"left\" width=\"50%\">&emsp;&emsp;" + m_day.foodOfFirst() + layout.foodLeftEnd);
        line("<td align=\"left\"  width=\"50%\">&emsp;&emsp;" + m_day.foodOfSecond() + layout.foodRightEnd);
        line("</tr> ");
    });
    whiteRow();
}

void HtmlPage::whiteRow()
{
    line("<!-- riga bianca ------------------------------------------------------------------------------- --> ");
    line("<tr> ");
    line("<td colspan=\"2\" align=\"center\">&nbsp;</td> ");
    line("</tr> ");
}

void HtmlPage::foot()
{
    line("<tr> ");
    line("<td align=\"center\" width=\"50%\" bgcolor=\"#94ACC9\"><h3>totale giornaliero KCal." +
         TestoNumero(m_day.totalOfFirst()) + "</h3></td> ");
    line("<td align=\"center\"  width=\"50%\"  bgcolor=\"#94ACC9\"><h3>totale giornaliero KCal." +
         TestoNumero(m_day.totalOfSecond()) + " </h3></td> ");
    line("</tr> ");
    line("</table> ");
    line("<br /><br /><br /><br /><br /><br /> ");
    line("&emsp;&emsp;&emsp;&emsp;<a href=\"mailto:" + kIndirizzoAutore +
         "\"><font size=\"+1\">By Tesmo Lorvani </font></a>  ");
    line(" </body> ");
    line("</html> ");
}

} // namespace

void StampaHtml(ModNetServer &modulo, const QString &DataGiorno)
{
    const QString file = FileStampa(modulo, DataGiorno, ".html");
    HtmlPage(modulo, DataGiorno, file).write();
    modulo.mondo.programmi.start(ProgramKind::Page, file);
}
