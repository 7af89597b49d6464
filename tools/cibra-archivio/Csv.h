// Comma-separated tables of the catalogue: UTF-8, a header row, texts with a comma or quote in double quotes.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class CsvTable
{
public:
    // Throws Failure(FileNotFound), or Failure(Engine) for a row that has not as many cells as the header.
    static CsvTable read(const QString &path);
    static CsvTable fromText(const QString &text, const QString &name);

    const QStringList &columns() const { return m_columns; }
    int rowCount() const { return int(m_rows.size()); }
    // Throws Failure(NoSuchField) for a column that the header lacks.
    const QString &cell(int row, const QString &column) const;

private:
    QString m_name;
    QStringList m_columns;
    std::vector<QStringList> m_rows;
};
