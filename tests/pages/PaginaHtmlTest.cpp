#include "pages/PaginaHtml.h"

#include "pages/PaginaScritta.h"
#include "platform/text/CodePage.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

class PaginaHtmlTest : public testing::Test
{
protected:
    PaginaHtmlTest() { world.cartella.makeFolder("\\Documenti"); }

    QByteArray written() { return world.cartella.read("\\Documenti\\Cibra.html"); }
    FailureNumber failure(void (*command)(ModNetServer &))
    {
        try {
            command(world.modulo);
        } catch (const Failure &thrown) {
            return thrown.number();
        }
        ADD_FAILURE() << "no failure";
        return {};
    }

    TestWorld world;
};

QByteArray golden(const QString &name)
{
    QFile file(CIBRA_SOURCE_DIR "/tests/golden/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

// The value of an attribute in a tag, "-" where it has none.
QString attribute(const QString &tag, const QString &name)
{
    const QRegularExpressionMatch match = QRegularExpression(' ' + name + "=\"([^\"]*)\"").match(tag);
    return match.hasMatch() ? match.captured(1) : "-";
}

// The fields of a page in order, each as "kind name size value", for buttons "button caption: what it runs".
QStringList fields(const QByteArray &page)
{
    static const QRegularExpression kTag("<(input|select|form)\\b[^>]*>");
    QStringList found;
    for (auto tags = kTag.globalMatch(fromWindows1252(page)); tags.hasNext();) {
        const QString tag = tags.next().captured();
        const QString kind = attribute(tag, "type");
        if (tag.startsWith("<form"))
            found.append("form");
        else if (tag.startsWith("<select"))
            found.append("select " + attribute(tag, "name") + ' ' + attribute(tag, "size"));
        else if (kind == "button")
            found.append("button " + attribute(tag, "value") + ": " + attribute(tag, "onclick"));
        else if (kind == "radio")
            found.append("radio " + attribute(tag, "name") + ' ' + attribute(tag, "value") +
                         (tag.contains(" checked") ? " checked" : ""));
        else
            found.append(kind + ' ' + attribute(tag, "name") + ' ' + attribute(tag, "size") + ' ' +
                         attribute(tag, "value"));
    }
    return found;
}

const QStringList kFabbisogno = {
    "form",
    "text age 6 0",
    "text height 6 0",
    "text weight 6 0",
    "radio R1 V1 checked",
    "radio R1 V2",
    "radio radio1 Light checked",
    "radio radio1 Medium",
    "radio radio1 Heavy",
    "radio radio1 Extreme",
    "radio radio2 -100",
    "radio radio2 0",
    "radio radio2 70 checked",
    "radio radio2 140",
    "radio radio2 210",
    "button Calcola: calc1(this.form)",
    "button Cancella: clearForm(this.form)",
    "text pesok2 6 -",
    "text pesok1 6 -",
    "text IMC 6 -",
    "text kcal 6 -",
    "text carboidrati 6 -",
    "text proteine 6 -",
    "text grassi 6 -",
    "text Testo 100 -",
};

QStringList mealFields(const QString &letter, int rows)
{
    QStringList found;
    for (int row = 1; row <= rows; ++row) {
        const QString name = letter + QString::number(row);
        found.append("select " + name + " 1");
        for (const char *column : {"g", "h", "k", "c", "p", "f"})
            found.append("text " + name + column + " 6 0");
    }
    for (const char *column : {"h", "k", "c", "p", "f"})
        found.append("text " + letter + 't' + column + " 6 0");
    return found;
}

// What a reader of the page sees, line after line: tags gone, options left out.
QString visibleText(const QByteArray &page)
{
    QString body = fromWindows1252(page).section("<body", 1);
    body = body.mid(body.indexOf('>') + 1);
    static const QRegularExpression kLists("<select.*?</select>", QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression kTags("<[^>]*>");
    return body.remove(kLists).remove(kTags).simplified();
}

// Whether the texts stand in the page in this order, each behind the one before.
testing::AssertionResult inOrder(const QString &page, const QStringList &texts)
{
    qsizetype from = 0;
    for (const QString &text : texts) {
        const qsizetype at = page.indexOf(text, from);
        if (at < 0)
            return testing::AssertionFailure() << "missing or out of order: " << text.toStdString();
        from = at + text.size();
    }
    return testing::AssertionSuccess();
}

TEST_F(PaginaHtmlTest, BothPagesAreWrittenByteForByte)
{
    EXPECT_TRUE(paginaIntera() == golden("pagina-intera.html")) << "the whole page differs from its golden file";
    EXPECT_TRUE(paginaBreve() == golden("pagina-breve.html")) << "the short page differs from its golden file";
}

TEST_F(PaginaHtmlTest, LinesEndInOneBlankAndThoseOfTheShortPageInTwo)
{
    const QStringList whole = lines(paginaIntera(), " ");
    EXPECT_TRUE(whole.contains("        for (k=0;k<29;k++) {"));
    EXPECT_GT(whole.size(), 1900);
    EXPECT_LT(whole.size(), 2300);
    const QStringList brief = lines(paginaBreve(), "  ");
    EXPECT_TRUE(brief.contains("        for (k=0;k<29;k++) {"));
}

TEST_F(PaginaHtmlTest, ThePageIsOpenedInTheBrowser)
{
    mnuHTML(world.modulo);
    const QString file = "Page " + world.cartella.path("\\Documenti\\Cibra.html");
    EXPECT_EQ(world.programmi.started, QStringList(file));
    MnukcCalcolo(world.modulo);
    EXPECT_EQ(world.programmi.started, QStringList({file, file}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(PaginaHtmlTest, EachRunReplacesTheFileOfTheLastOne)
{
    world.cartella.write("\\Documenti\\Cibra.html", QByteArray(300'000, 'x'));
    mnuHTML(world.modulo);
    EXPECT_TRUE(written() == paginaIntera());
    MnukcCalcolo(world.modulo);
    EXPECT_TRUE(written() == paginaBreve());
    mnuHTML(world.modulo);
    EXPECT_TRUE(written() == paginaIntera());
    EXPECT_EQ(world.cartella.entries("\\Documenti"), QStringList("Cibra.html"));
}

TEST_F(PaginaHtmlTest, WithoutTheFolderDocumentiNothingIsWrittenOrOpened)
{
    world.cartella.remove("\\Documenti");
    EXPECT_EQ(failure(mnuHTML), FailureNumber::PathNotFound);
    EXPECT_EQ(failure(MnukcCalcolo), FailureNumber::PathNotFound);
    EXPECT_EQ(world.programmi.started, QStringList());
    EXPECT_FALSE(world.cartella.has("\\Documenti"));
}

TEST_F(PaginaHtmlTest, AFolderInThePlaceOfTheFileIsToldAndNothingIsOpened)
{
    world.cartella.makeFolder("\\Documenti\\Cibra.html");
    EXPECT_EQ(failure(mnuHTML), FailureNumber::PathAccess);
    EXPECT_EQ(world.programmi.started, QStringList());
}

TEST_F(PaginaHtmlTest, WithoutABrowserThePageIsThereAllTheSame)
{
    world.programmi.nothingIsInstalled = true;
    EXPECT_EQ(failure(mnuHTML), FailureNumber::FileNotFound);
    EXPECT_TRUE(written() == paginaIntera());
}

TEST_F(PaginaHtmlTest, TheHeadDeclaresCodePageGeneratorsTitleAndScript)
{
    EXPECT_TRUE(
        inOrder(fromWindows1252(paginaIntera()),
                {"<head> \r\n", "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\"> \r\n",
                 "\"Microsoft FrontPage 5.0\"", "\"FrontPage.Editor.Document\"",
                 "<title>Calcolo fabbisogno calorico</title> \r\n", "<SCRIPT LANGUAGE=\"JavaScript\"> \r\n",
                 "function calc1(form) {", "function clearForm(form) {", "function estrai(SA) {",
                 "function calc2(form) {", "</SCRIPT> \r\n", "</head> \r\n", "<body", "<center> \r\n"}));
    EXPECT_EQ(paginaIntera().count("<SCRIPT"), 1);
}

TEST_F(PaginaHtmlTest, TheWholePageHasItsFieldsInOrder)
{
    QStringList expected = kFabbisogno;
    expected += "form";
    expected += mealFields("A", 4) + mealFields("B", 7) + mealFields("C", 4) + mealFields("D", 7);
    expected += {"button Calcola: calc2(this.form)",
                 "text toth 6 0",
                 "text totk 6 0",
                 "text totc 6 0",
                 "text totp 6 0",
                 "text totf 6 0",
                 "text aumdim 16 -",
                 "text ksett 6 0",
                 "text testo2 100 -"};
    EXPECT_EQ(fields(paginaIntera()), expected);
}

TEST_F(PaginaHtmlTest, TheShortPageHasTheFieldsOfTheNeedAlone)
{
    EXPECT_EQ(fields(paginaBreve()), kFabbisogno);
}

TEST_F(PaginaHtmlTest, TheWholePageReadsInItsOrder)
{
    const QStringList columns = {"Grammi", "Acqua", "Kcal.", "Carboidrati", "Proteine", "Grassi", "Totali"};
    QStringList texts = {"Due conti per la cibra",
                         "7.000 kcal",
                         "1.000 kcal",
                         "Età in anni",
                         "Altezza cm",
                         "Peso kg",
                         "Maschio",
                         "Femmina",
                         "Leggera (lavoro sedentario, molte ore al computer)",
                         "Media (camminare, jogging, semplici percorsi in bici)",
                         "Pesante (mountain byke, aerobica, corsa)",
                         "Estremamente pesante (scalare montagne, attività ciclistica agonistica)",
                         "Più di 10",
                         "Meno di 7",
                         "Peso forma stimato da a kg Indice di Massa Corporea",
                         "Fabbisogno nutrizionale giornaliero",
                         "Kcal/giorno Carboidrati Proteine Grassi",
                         "Ministero"};
    for (const char *meal : {"I colazione", "Pranzo", "Merenda", "Cena"})
        texts += QStringList(meal) + columns;
    texts += {"Ed ecco i risultati:",
              "Il tuo apporto nutritivo quotidiano, ottenuto sommando il contributo dei diversi pasti giornalieri è "
              "così distribuito:",
              "Acqua Kcal. Carboidrati Proteine Grassi",
              "Mantenendo questo regime alimentare otterrai di circa kg a settimana"};
    EXPECT_TRUE(inOrder(visibleText(paginaIntera()), texts));
}

TEST_F(PaginaHtmlTest, TheWholePageOpensWithALinkAndClosesWithSevenLineBreaks)
{
    const QByteArray page = paginaIntera();
    EXPECT_TRUE(
        inOrder(fromWindows1252(page), {"<center> \r\n<a href=\"https://", "target=\"_blank\"",
                                        "</a> \r\n<br> \r\n<br> \r\n<br> \r\n<table border=\"0\" width=\"800\""}));
    EXPECT_TRUE(page.endsWith("</table> \r\n<br> \r\n<br> \r\n<br> \r\n<br> \r\n<br> \r\n<br> \r\n<br> \r\n"
                              "</center> \r\n</body> \r\n</html> \r\n"));
}

TEST_F(PaginaHtmlTest, OnlyTheHeadingsOfTheDinnerAreWhite)
{
    const QString page = fromWindows1252(paginaIntera());
    EXPECT_EQ(page.count("<font color=\"#FFFFFF\">"), 7);
    EXPECT_TRUE(inOrder(page, {"<b>Merenda</b>", "<font color=\"#FFFFFF\"><b>Cena</b>",
                               "<font color=\"#FFFFFF\">Grassi", "name=\"D1\""}));
}

TEST_F(PaginaHtmlTest, TheShortPageHasTheScriptOfTheWholeOne)
{
    const auto script = [](const QByteArray &page, const QString &end) {
        const QStringList all = lines(page, end);
        return all.mid(0, all.indexOf("</SCRIPT>"));
    };
    EXPECT_EQ(script(paginaBreve(), "  "), script(paginaIntera(), " "));
    EXPECT_TRUE(paginaBreve().contains("        for (k=0;k<29;k++) {  \r\n"));
}

TEST_F(PaginaHtmlTest, TheShortPageIsOrangeAndLeadsBackToTheProgram)
{
    const QByteArray page = paginaBreve();
    EXPECT_FALSE(page.contains("<a href"));
    EXPECT_TRUE(inOrder(
        fromWindows1252(page),
        {"<center>  \r\n<br>  \r\n<br>  \r\n<br>  \r\n<table border=\"0\" width=\"800\"", "<tr bgcolor=\"#FF9933\">",
         "Calcola le tue Kcal per la cibra</font><br><br></td>",
         "name=\"pesok2\" size=\"6\">  \r\n<br>  \r\n<br>  \r\na  \r\n", "name=\"pesok1\" size=\"6\"></td>",
         "<td align=\"center\" width=\"25%\" bgcolor=\"#FF9933\"><font size=\"5\">Kcal/giorno",
         "name=\"kcal\" size=\"6\" style=\"", "Carboidrati<br><br>", "Proteine<br><br>", "Grassi<br><br>", "</form>",
         "<br> <center><h2>Riporta i dati delle KCAL/Giorno nella procedura </h2></center> <br> <br> "
         "<br> <br> <br> <br>  \r\n<br>  \r\n"}));
    EXPECT_EQ(visibleText(page).count("kg"), 1); // of the weight typed
    EXPECT_FALSE(page.contains("Ministero"));
    EXPECT_FALSE(page.contains("<select"));
}

} // namespace
