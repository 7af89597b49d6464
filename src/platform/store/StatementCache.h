// Jet statements translated and prepared, the latest used kept ready.
#pragma once

#include "platform/store/JetTranslator.h"
#include "platform/store/LiftedLiterals.h"
#include "platform/store/Statement.h"

#include <QHash>
#include <QString>

#include <list>
#include <memory>
#include <vector>

struct ResultShape;

struct PreparedStatement
{
    QString key;
    Translation translation;
    Statement statement;
    std::vector<QByteArray> values;           // bound to it
    std::shared_ptr<const ResultShape> shape; // once somebody has asked for it
};

class StatementCache
{
public:
    // Throws Failure(Engine). The statement stays valid until the next call.
    PreparedStatement &prepare(sqlite3 *handle, const QString &statement);
    void clear();

private:
    PreparedStatement *find(const QString &key);
    PreparedStatement &keep(PreparedStatement &&prepared);

    std::list<PreparedStatement> m_recent; // latest first
    QHash<QString, std::list<PreparedStatement>::iterator> m_byKey;
};
