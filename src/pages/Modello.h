// The text of the nutrition page, put together from the files of src/pages/modello.
//
// Lines of these files go into the page as they stand, but for those that begin with "@":
//   @usa FILE [TEXT]    the lines of another file, TEXT in place of "##"
//   @elenco NAME        the foods of a list
//   @se intera|breve    what follows up to the next @fine is for that page only
//
// All texts here are bytes of windows-1252, the code page of the page.
#pragma once

#include <QByteArray>

enum class Pagina
{
    Intera, // both calculators, with the table of foods
    Breve,  // the calculator of the need alone
};

// Whole, line ends included: each line ends in one blank (the short page: two) and CR LF.
QByteArray TestoPagina(Pagina pagina);
