// The list of all dishes with their calories.
#pragma once

#include <QString>

// Every named dish with what it gives to each person, computed from the portions and not from the stored totals.
QString IstruzionePiattiKcal();
