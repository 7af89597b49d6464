// Archives with daily sheets of one year and of ten, each made once for a run.
#pragma once

#include <QDate>
#include <QString>
#include <QTemporaryDir>

class SheetYears
{
public:
    static const SheetYears &shared();    // ten years: about 125,000 rows, 34 or 35 a day
    static const SheetYears &ofOneYear(); // the first of them

    QString path() const;
    QString emptyPath() const;         // the same tables without rows
    QString dayText(int number) const; // dd/mm/yyyy; any number names a day of these years

private:
    explicit SheetYears(int days);

    int m_days;
    QTemporaryDir m_folder;
};
