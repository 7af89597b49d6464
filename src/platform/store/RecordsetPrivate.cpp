#include "platform/store/RecordsetPrivate.h"

#include "platform/store/Criterion.h"
#include "platform/store/FieldValues.h"
#include "platform/store/SnapshotReader.h"

#include <algorithm>
#include <utility>

namespace {

// Texts that an append-only set has taken before it gives their memory back.
constexpr std::size_t kAppendedTexts = std::size_t(1024) * 1024;

ColumnType typeByValues(const Snapshot &snapshot, int column)
{
    for (std::uint32_t row = 0; row < snapshot.rows(); ++row) {
        const Cell::Kind kind = snapshot.row(row)[column].kind;
        if (kind != Cell::Kind::Null)
            return kind == Cell::Kind::Text ? ColumnType::Text : ColumnType::Number;
    }
    return ColumnType::Text;
}

// The shape with the types that only the rows could tell.
std::shared_ptr<const ResultShape> completed(const std::shared_ptr<const ResultShape> &shape, const Snapshot &snapshot)
{
    std::shared_ptr<ResultShape> copy;
    for (std::size_t field = 0; field < shape->fields.size(); ++field) {
        if (!shape->typeByValues[field])
            continue;
        if (!copy)
            copy = std::make_shared<ResultShape>(*shape);
        copy->fields[field].type = typeByValues(snapshot, int(field));
    }
    return copy ? copy : shape;
}

} // namespace

std::shared_ptr<Database> Recordset::Private::connected() const
{
    std::shared_ptr<Database> opened = database.lock();
    if (!opened)
        throw Failure::usual(FailureNumber::ConnectionClosed);
    return opened;
}

void Recordset::Private::needOpen() const
{
    if (!open)
        throw Failure::usual(FailureNumber::ObjectClosed);
}

void Recordset::Private::needRow() const
{
    needOpen();
    if (!rows.onRow())
        throw Failure::usual(FailureNumber::NoCurrentRow);
}

void Recordset::Private::needUpdatable() const
{
    needOpen();
    if (!shape->updatable() || access == Access::ReadOnly)
        throw Failure::usual(FailureNumber::NotPermitted);
}

void Recordset::Private::needField(int index) const
{
    needOpen();
    if (index < 0 || std::size_t(index) >= shape->fields.size())
        throw Failure::usual(FailureNumber::NoSuchField, QString::number(index));
}

void Recordset::Private::load()
{
    const std::shared_ptr<Database> opened = connected();
    PreparedStatement &prepared = opened->prepare(source);
    if (prepared.statement.columnCount() == 0)
        throw Failure(FailureNumber::Engine, QStringLiteral("L'istruzione non restituisce record"), source);
    Snapshot read;
    const StatementRun run(prepared.statement);
    const bool anyRow = access != Access::AppendOnly && prepared.statement.step(source);
    const std::shared_ptr<const ResultShape> &known = opened->shapeOf(prepared);
    read.start(known->columns);
    readRows(prepared.statement, anyRow, known->columns, read, source);
    shape = completed(known, read);
    snapshot = std::move(read);
    rows.start(snapshot.rows());
    pending.drop();
}

void Recordset::Private::applyFilter()
{
    if (filter.isEmpty()) {
        rows.dropFilter();
        return;
    }
    const Criterion criterion(filter);
    const int field = needFieldNamed(criterion.column());
    const ColumnType type = shape->fields[std::size_t(field)].type;
    rows.filter([&](std::uint32_t row) { return criterion.passes(cellValue(snapshot.row(row)[field], type)); });
}

void Recordset::Private::reload()
{
    const std::optional<qint64> key = currentKey();
    const int position = rows.position();
    load();
    applyFilter();
    rows.moveTo(std::clamp(position, 0, std::max(rows.count() - 1, 0)));
    for (int i = 0; key && i < rows.count(); ++i)
        if (snapshot.row(rows.row(i))[shape->keyCell()].whole == *key)
            rows.moveTo(i);
}

std::optional<qint64> Recordset::Private::currentKey() const
{
    if (!shape->updatable() || !rows.onRow() || pending.kind() == PendingRow::Kind::New)
        return std::nullopt;
    return snapshot.row(rows.row(rows.position()))[shape->keyCell()].whole;
}

void Recordset::Private::find(const Criterion &criterion)
{
    const int field = needFieldNamed(criterion.column());
    int position = std::max(rows.position(), 0);
    while (position < rows.count() && !criterion.passes(value(position, field)))
        ++position;
    rows.moveTo(position);
}

int Recordset::Private::fieldNamed(QStringView name) const
{
    for (std::size_t field = 0; field < shape->fields.size(); ++field) {
        const QString &known = shape->fields[field].name;
        if (known.size() == name.size() && name.compare(known, Qt::CaseInsensitive) == 0)
            return int(field);
    }
    return -1;
}

int Recordset::Private::needFieldNamed(const QString &name) const
{
    needOpen();
    const int field = fieldNamed(name);
    if (field < 0)
        throw Failure::usual(FailureNumber::NoSuchField, name);
    return field;
}

Value Recordset::Private::value(int position, int field) const
{
    const Cell *cell = position == rows.position() ? pending.assigned(field) : nullptr;
    if (cell == nullptr)
        cell = snapshot.row(rows.row(position)) + field;
    return cellValue(*cell, shape->fields[std::size_t(field)].type);
}

void Recordset::Private::startNewRow()
{
    if (access == Access::AppendOnly)
        forgetAppended();
    m_positionBeforeNew = rows.position();
    m_gapBeforeNew = rows.inGap();
    snapshot.addRow();
    rows.append(snapshot.rows() - 1);
    pending.start(PendingRow::Kind::New, shape->fields.size());
}

// The row added before has done its duty: an append-only set keeps the latest one alone.
void Recordset::Private::forgetAppended()
{
    if (snapshot.textBytes() > kAppendedTexts)
        snapshot.start(shape->columns);
    else if (snapshot.rows() > 0)
        snapshot.dropLastRow();
    rows.start(0);
}

void Recordset::Private::assign(int field, const Value &value)
{
    needUpdatable();
    if (shape->tableColumns[std::size_t(field)] < 0)
        throw Failure::usual(FailureNumber::NotPermitted, shape->fields[std::size_t(field)].name);
    const Value converted = convertedFor(shape->fields[std::size_t(field)].type, value);
    if (!pending)
        pending.start(PendingRow::Kind::Edit, shape->fields.size());
    pending.assign(field, storedCell(converted, snapshot));
}

void Recordset::Private::writePending()
{
    if (!pending)
        return;
    const std::shared_ptr<Database> opened = connected();
    const std::vector<CellChange> changes = pending.changes(*shape, currentCells());
    if (pending.kind() == PendingRow::Kind::New)
        writeNew(*opened, changes);
    else if (!changes.empty())
        writeEdit(*opened, changes);
    pending.drop();
}

void Recordset::Private::writeNew(Database &opened, const std::vector<CellChange> &cells)
{
    qint64 key = 0;
    opened.group().run(source, [&] { key = opened.writer(shape->table).insert(cells, source); });
    Cell *const row = currentCells();
    for (std::size_t field = 0; field < shape->fields.size(); ++field) {
        const int column = shape->tableColumns[field];
        if (column >= 0)
            row[field] = column == shape->table->keyColumn
                             ? Cell::ofWhole(key)
                             : storedCell(shape->table->columns[std::size_t(column)].byDefault, snapshot);
    }
    pending.apply(*shape, row);
    row[shape->keyCell()] = Cell::ofWhole(key);
}

void Recordset::Private::writeEdit(Database &opened, const std::vector<CellChange> &changes)
{
    bool written = false;
    const qint64 key = currentCells()[shape->keyCell()].whole;
    opened.group().run(source, [&] { written = opened.writer(shape->table).update(key, changes, source); });
    if (!written)
        throw rowChanged();
    pending.apply(*shape, currentCells());
    for (const CellChange &change : changes) // the row is known by its new key from now on
        if (change.column == shape->table->keyColumn && change.after.kind != Cell::Kind::Null)
            currentCells()[shape->keyCell()] = Cell::ofWhole(
                change.after.kind == Cell::Kind::Whole ? change.after.whole : qint64(change.after.number));
}

Failure Recordset::Private::rowChanged() const
{
    return Failure(FailureNumber::RowChanged, Failure::usual(FailureNumber::RowChanged).words(), source);
}

void Recordset::Private::dropNewRow()
{
    rows.removeLast();
    snapshot.dropLastRow();
    rows.restore(m_positionBeforeNew, m_gapBeforeNew);
    pending.drop();
}

void Recordset::Private::deleteCurrent()
{
    const std::shared_ptr<Database> opened = connected();
    bool removed = false;
    const qint64 key = currentCells()[shape->keyCell()].whole;
    opened->group().run(source, [&] { removed = opened->writer(shape->table).remove(key, source); });
    if (!removed)
        throw rowChanged();
    pending.drop();
    rows.removeCurrent();
}
