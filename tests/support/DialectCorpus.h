// The statements of tests/dialect, read. The README.md there tells the form of the files.
#pragma once

#include <QString>

#include <ostream>
#include <vector>

struct DialectCase
{
    QString name;      // of the case within its file
    QString statement; // letter by letter
    QString mark;      // "writes Table", "reads", "opens Name", "acts"; empty for a text that fails
    QString expected;  // the translation, or the words of the failure
    bool fails() const { return mark.isEmpty(); }
};

struct DialectFile
{
    QString name;                                  // without folder and ending
    QString schema = QStringLiteral("schema.sql"); // what its statements run on, "none" where they do not run
    std::vector<DialectCase> cases;
};

inline void PrintTo(const DialectFile &file, std::ostream *out)
{
    *out << file.name.toStdString();
}

struct DialectConstruct
{
    QString what, before, after, shownBy;
};

// All of them, by name. A file that cannot be read as one throws std::runtime_error with file and line.
std::vector<DialectFile> readDialectFiles();
std::vector<DialectConstruct> readConstructs();
