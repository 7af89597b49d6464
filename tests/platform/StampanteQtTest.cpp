#include "platform/ui/StampanteQt.h"

#include "platform/Failure.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPrinter>

namespace {

class StampanteQtTest : public testing::Test
{
protected:
    StampanteQtTest()
    {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(picture));
    }

    // The user lets the page go into a file.
    bool toFile(QPrinter &printer)
    {
        ++asked;
        landscape = printer.pageLayout().orientation() == QPageLayout::Landscape;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(page);
        return accepts;
    }
    FailureNumber numberOf(const std::function<void()> &action)
    {
        try {
            action();
        } catch (const Failure &failure) {
            return failure.number();
        }
        return FailureNumber(0);
    }

    TemporaryFolder folder;
    QString picture = folder.path() + "/form.png";
    QString page = folder.path() + "/pagina.pdf";
    bool accepts = true;
    bool landscape = false;
    int asked = 0;
    StampanteQt stampante{[this](QPrinter &printer) { return toFile(printer); }};
};

TEST_F(StampanteQtTest, APictureGoesOntoOnePageThatLiesAsThePictureDoes)
{
    stampante.stampa(picture);
    EXPECT_TRUE(landscape);
    EXPECT_TRUE(folder.read("\\pagina.pdf").startsWith("%PDF"));
}

TEST_F(StampanteQtTest, GivingThePrintDialogUpPrintsNothingAndSaysNothing)
{
    accepts = false;
    EXPECT_EQ(numberOf([&] { stampante.stampa(picture); }), FailureNumber(0));
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(folder.has("\\pagina.pdf"));
}

TEST_F(StampanteQtTest, APictureThatIsNotThereIsNotAskedFor)
{
    EXPECT_EQ(numberOf([&] { stampante.stampa(folder.path() + "/manca.png"); }), FailureNumber::FileNotFound);
    EXPECT_EQ(asked, 0);
}

TEST_F(StampanteQtTest, APageThatCannotBeWrittenIsAFailure)
{
    page = folder.path() + "/manca/pagina.pdf";
    EXPECT_EQ(numberOf([&] { stampante.stampa(picture); }), FailureNumber::PathAccess);
}

TEST_F(StampanteQtTest, TheSetUpKeepsThePrinterForLaterAndGivingItUpIsAFailure)
{
    stampante.imposta();
    accepts = false;
    EXPECT_EQ(numberOf([&] { stampante.imposta(); }), FailureNumber::Cancelled);
    EXPECT_EQ(asked, 2);
}

} // namespace
