// The foods of the nutrition page: 176 in 16 groups, each held once.
#pragma once

#include <QString>

#include <vector>

struct AlimentoPagina
{
    QString nome;
    // What its option carries, all per 100 g: "h" water, "p" proteins, "f" fats, "s" carbohydrates and "f" fibre, four
    // characters each, "k" kcal, three. The page's script reads it by position alone, and three foods are one character
    // short.
    QString valore;
};

struct GruppoPagina
{
    QString nome;
    std::vector<AlimentoPagina> alimenti; // in their usual order
};

// In the order of the groups.
std::vector<GruppoPagina> AlimentiPagina();
