// The foods of the nutrition page: 176 in 16 groups, each held once.
#pragma once

#include <QByteArray>

#include <vector>

// Texts are bytes of windows-1252, the code page of the page.
struct AlimentoPagina
{
    QByteArray nome;
    // What its option carries, all per 100 g: "h" water, "p" proteins, "f" fats, "s" carbohydrates and "f" fibre, four
    // characters each, "k" kcal, three. The page's script reads it by position alone, and three foods are one character
    // short.
    QByteArray valore;
};

struct GruppoPagina
{
    QByteArray nome;
    std::vector<AlimentoPagina> alimenti; // in their usual order
};

// In the order of the groups; read once.
const std::vector<GruppoPagina> &AlimentiPagina();
