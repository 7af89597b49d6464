#include "catalogue/ArchivioPagine.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

TEST(ArchivioPagineTest, TheFolderIsFoundWhateverItsCase)
{
    TestWorld world;
    world.cartella.makeFolder("documenti");
    EXPECT_EQ(CartellaDocumenti(world.modulo), world.cartella.path() + "/documenti");
}

TEST(ArchivioPagineTest, APageGoesToTheBrowserAndATextToItsViewer)
{
    TestWorld world;
    ApriPagina(world.modulo, "/giorni", "02032025.html");
    ApriPagina(world.modulo, "/giorni", "02032025.TXT");
    EXPECT_EQ(world.programmi.started, QStringList({"Page /giorni/02032025.html", "TextViewer /giorni/02032025.TXT"}));
}

} // namespace
