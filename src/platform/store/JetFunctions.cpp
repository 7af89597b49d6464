#include "platform/store/JetFunctions.h"

#include "platform/store/EngineFailure.h"
#include "platform/store/Folding.h"
#include "platform/text/Dates.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>

#include <algorithm>
#include <iterator>

namespace {

int collate(void *, int leftSize, const void *left, int rightSize, const void *right)
{
    return compareFolded(QByteArrayView(static_cast<const char *>(left), leftSize),
                         QByteArrayView(static_cast<const char *>(right), rightSize));
}

bool digitsAt(QByteArrayView text, int from, int count)
{
    for (int i = from; i < from + count; ++i)
        if (text[i] < '0' || text[i] > '9')
            return false;
    return true;
}

// A day in the form that real date columns hold is a day already.
bool isStoredDay(QByteArrayView text)
{
    return text.size() == 10 && text[4] == '-' && text[7] == '-' && digitsAt(text, 0, 4) && digitsAt(text, 5, 2) &&
           digitsAt(text, 8, 2);
}

// The usual spelling dd/mm/yyyy read byte by byte: a list of days asks for it once a row. False for all others.
bool readUsualDay(QByteArrayView text, char *stored)
{
    if (text.size() != 10 || text[2] != '/' || text[5] != '/' || !digitsAt(text, 0, 2) || !digitsAt(text, 3, 2) ||
        !digitsAt(text, 6, 4))
        return false;
    const auto number = [text](int from, int count) { return text.sliced(from, count).toInt(); };
    if (!QDate::isValid(number(6, 4), number(3, 2), number(0, 2)))
        return false;
    const char order[] = {text[6], text[7], text[8], text[9], '-', text[3], text[4], '-', text[0], text[1]};
    std::copy(std::begin(order), std::end(order), stored);
    return true;
}

// A text that is no day gives null, so that one bad row does not end a whole statement.
void cdate(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(arguments[0]));
    if (text == nullptr)
        return;
    const QByteArrayView told(text, sqlite3_value_bytes(arguments[0]));
    if (isStoredDay(told)) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    char usual[10];
    if (readUsualDay(told, usual)) {
        sqlite3_result_text(context, usual, sizeof usual, SQLITE_TRANSIENT);
        return;
    }
    const QDate day = dayFromText(QString::fromUtf8(told));
    if (!day.isValid())
        return;
    const QByteArray stored = day.toString(Qt::ISODate).toLatin1();
    sqlite3_result_text(context, stored.constData(), int(stored.size()), SQLITE_TRANSIENT);
}

// The value kept so far by jet_first or jet_last; the engine gives the memory, all zero.
struct Kept
{
    sqlite3_value *value;
    sqlite3_int64 key;
    bool any;
};

enum class Side
{
    First,
    Last
};

template <Side side>
void keep(sqlite3_context *context, int, sqlite3_value **arguments)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (kept == nullptr) {
        sqlite3_result_error_nomem(context);
        return;
    }
    const sqlite3_int64 key = sqlite3_value_int64(arguments[1]);
    const bool better = !kept->any || (side == Side::First ? key < kept->key : key >= kept->key);
    if (!better)
        return;
    sqlite3_value_free(kept->value);
    *kept = {sqlite3_value_dup(arguments[0]), key, true};
}

void giveKept(sqlite3_context *context)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, 0));
    if (kept == nullptr || kept->value == nullptr)
        return;
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
}

} // namespace

void teachEngine(sqlite3 *handle)
{
    int rc = sqlite3_create_collation_v2(handle, "NOCASE", SQLITE_UTF8, nullptr, collate, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_create_function_v2(handle, "CDate", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, cdate, nullptr,
                                        nullptr, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_create_function_v2(handle, "jet_first", 2, SQLITE_UTF8, nullptr, nullptr, keep<Side::First>,
                                        giveKept, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_create_function_v2(handle, "jet_last", 2, SQLITE_UTF8, nullptr, nullptr, keep<Side::Last>,
                                        giveKept, nullptr);
    if (rc != SQLITE_OK)
        throw engineFailure(handle, rc);
}
