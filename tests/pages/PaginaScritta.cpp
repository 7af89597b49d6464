#include "pages/PaginaScritta.h"

#include "pages/PaginaHtml.h"
#include "platform/text/CodePage.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

QByteArray written(void (*command)(ModNetServer &))
{
    TestWorld world;
    world.cartella.makeFolder("\\Documenti");
    command(world.modulo);
    return world.cartella.read("\\Documenti\\Cibra.html");
}

} // namespace

QByteArray paginaIntera()
{
    return written(mnuHTML);
}

QByteArray paginaBreve()
{
    return written(MnukcCalcolo);
}

QStringList lines(const QByteArray &page, const QString &end)
{
    QStringList all = fromWindows1252(page).split("\r\n");
    EXPECT_EQ(all.takeLast().toStdString(), "") << "the last line has its end";
    for (QString &line : all) {
        EXPECT_TRUE(line.endsWith(end) && !line.chopped(end.size()).endsWith(u' ')) << line.toStdString();
        EXPECT_FALSE(line.contains(u'\n') || line.contains(u'\r')) << line.toStdString();
        line.chop(end.size());
    }
    return all;
}
