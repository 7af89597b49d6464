// Makes an archive from statements and rows, in one transaction.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

// A value as the engine keeps it: null, whole number, number, text or bytes.
using StoredValue = std::variant<std::monostate, qint64, double, QString, QByteArray>;

// The archive is there for good after finish(); without it, or after a failure, no file is left.
class ArchiveBuilder
{
public:
    // Takes a new file, encrypted where a password is given. Throws Failure(PathAccess) where the file is there
    // already or cannot be made.
    explicit ArchiveBuilder(const QString &path, const QString &password = {});
    ~ArchiveBuilder();
    ArchiveBuilder(const ArchiveBuilder &) = delete;
    ArchiveBuilder &operator=(const ArchiveBuilder &) = delete;

    // The engine's own statements, any number. Throws Failure(Engine).
    void run(const QString &script);
    // Says where the next rows go.
    void startRows(const QString &table, const QStringList &columns);
    // One value a column of startRows, exactly as it is. Throws Failure(Engine).
    void addRow(const std::vector<StoredValue> &values);
    void finish();

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};
