// An archive with daily sheets of ten years, made once for a run.
#pragma once

#include <QDate>
#include <QString>
#include <QTemporaryDir>

class SheetYears
{
public:
    static const SheetYears &shared();

    QString path() const;              // SchedaPranzo holds about 125,000 rows, 34 or 35 a day
    QString emptyPath() const;         // the same tables without rows
    QString dayText(int number) const; // dd/mm/yyyy; any number names a day of the ten years

private:
    SheetYears();

    QTemporaryDir m_folder;
};
