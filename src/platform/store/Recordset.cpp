#include "platform/store/Recordset.h"

#include "platform/store/ConnectionPrivate.h"
#include "platform/store/Criterion.h"
#include "platform/store/RecordsetPrivate.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kEmptyPosition = -1;
constexpr int kBofPosition = -2;
constexpr int kEofPosition = -3;

} // namespace

Recordset::Recordset() : m_private(std::make_unique<Private>()) {}

Recordset::~Recordset() = default;

void Recordset::Open(const QString &source, Connection &connection, Access access)
{
    if (m_private->open)
        throw Failure::usual(FailureNumber::ObjectOpen);
    connection.engine().opened();
    m_private->source = source;
    m_private->access = access;
    m_private->database = connection.engine().database;
    m_private->filter.clear();
    m_private->load();
    m_private->open = true;
    emit opened();
    emit moveComplete();
}

void Recordset::Close()
{
    if (!m_private->open)
        return;
    const QString source = m_private->source;
    m_private = std::make_unique<Private>();
    m_private->source = source;
    emit opened();
}

bool Recordset::isOpen() const
{
    return m_private->open;
}

const QString &Recordset::Source() const
{
    return m_private->source;
}

bool Recordset::Bof() const
{
    m_private->needOpen();
    return m_private->rows.empty() || m_private->rows.position() < 0;
}

bool Recordset::Eof() const
{
    m_private->needOpen();
    const RowList &rows = m_private->rows;
    return rows.empty() || (!rows.inGap() && rows.position() >= rows.count());
}

int Recordset::RecordCount() const
{
    m_private->needOpen();
    return m_private->rows.count();
}

int Recordset::AbsolutePosition() const
{
    if (RecordCount() == 0)
        return kEmptyPosition;
    if (Bof())
        return kBofPosition;
    return Eof() ? kEofPosition : std::min(m_private->rows.position() + 1, RecordCount());
}

void Recordset::MoveFirst()
{
    m_private->needOpen();
    writeWhatWaits();
    if (m_private->rows.empty())
        throw Failure::usual(FailureNumber::NoCurrentRow);
    m_private->rows.moveTo(0);
    emit moveComplete();
}

void Recordset::MoveLast()
{
    m_private->needOpen();
    writeWhatWaits();
    if (m_private->rows.empty())
        throw Failure::usual(FailureNumber::NoCurrentRow);
    m_private->rows.moveTo(m_private->rows.count() - 1);
    emit moveComplete();
}

void Recordset::MoveNext()
{
    Move(1);
}

void Recordset::MovePrevious()
{
    Move(-1);
}

void Recordset::Move(int rows)
{
    m_private->needOpen();
    writeWhatWaits();
    // From the gap of a deleted row both ways lead on, even where no row is left.
    const bool stuck = !m_private->rows.inGap() && ((rows > 0 && Eof()) || (rows < 0 && Bof()));
    if (stuck)
        throw Failure::usual(FailureNumber::NoCurrentRow);
    m_private->rows.moveBy(rows);
    emit moveComplete();
}

void Recordset::Find(const QString &criterion)
{
    m_private->needOpen();
    const Criterion condition(criterion);
    writeWhatWaits();
    m_private->find(condition);
    emit moveComplete();
}

void Recordset::setFilter(const QString &criterion)
{
    m_private->needOpen();
    writeWhatWaits();
    const QString former = std::exchange(m_private->filter, criterion);
    try {
        m_private->applyFilter();
    } catch (const Failure &) {
        m_private->filter = former;
        throw;
    }
    emit opened();
    emit moveComplete();
}

const QString &Recordset::filter() const
{
    return m_private->filter;
}

void Recordset::AddNew()
{
    m_private->needUpdatable();
    writeWhatWaits();
    const bool replaces = m_private->access == Access::AppendOnly && RecordCount() > 0;
    m_private->startNewRow();
    if (replaces)
        emit rowRemoved(0);
    emit rowInserted(RecordCount() - 1);
    emit moveComplete();
}

void Recordset::Update()
{
    m_private->needOpen();
    letEditorsWrite();
    if (!m_private->pending)
        return;
    m_private->writePending();
    emit rowChanged(m_private->rows.position());
}

void Recordset::UpdateBatch()
{
    Update();
}

void Recordset::CancelUpdate()
{
    m_private->needOpen();
    for (RowEditor *editor : m_editors)
        editor->dropTyped();
    const int row = m_private->rows.position();
    switch (m_private->pending.kind()) {
    case PendingRow::Kind::None:
        break;
    case PendingRow::Kind::Edit:
        m_private->pending.drop();
        emit rowChanged(row);
        break;
    case PendingRow::Kind::New:
        m_private->dropNewRow();
        emit rowRemoved(row);
        emit moveComplete();
        break;
    }
}

void Recordset::Delete()
{
    m_private->needUpdatable();
    if (isAdding()) {
        CancelUpdate();
        return;
    }
    m_private->needRow();
    const int row = m_private->rows.position();
    m_private->deleteCurrent();
    emit rowRemoved(row);
    emit moveComplete();
}

void Recordset::Requery()
{
    m_private->needOpen();
    m_private->load();
    m_private->applyFilter();
    emit opened();
    emit moveComplete();
}

void Recordset::Resync()
{
    m_private->needOpen();
    for (RowEditor *editor : m_editors)
        editor->dropTyped();
    m_private->reload();
    emit opened();
    emit moveComplete();
}

bool Recordset::isPending() const
{
    return bool(m_private->pending);
}

bool Recordset::isAdding() const
{
    return m_private->pending.kind() == PendingRow::Kind::New;
}

int Recordset::fieldCount() const
{
    m_private->needOpen();
    return int(m_private->shape->fields.size());
}

const FieldInfo &Recordset::field(int index) const
{
    m_private->needField(index);
    return m_private->shape->fields[std::size_t(index)];
}

int Recordset::fieldIndex(const QString &name) const
{
    return m_private->needFieldNamed(name);
}

bool Recordset::hasField(const QString &name) const
{
    m_private->needOpen();
    return m_private->fieldNamed(name) >= 0;
}

Value Recordset::value(int index) const
{
    m_private->needField(index);
    m_private->needRow();
    return m_private->value(m_private->rows.position(), index);
}

Value Recordset::value(const QString &name) const
{
    return value(fieldIndex(name));
}

void Recordset::setValue(int index, const Value &value)
{
    m_private->needField(index);
    m_private->needRow();
    m_private->assign(index, value);
}

void Recordset::setValue(const QString &name, const Value &value)
{
    setValue(fieldIndex(name), value);
}

Value Recordset::valueAt(int row, int column) const
{
    m_private->needField(column);
    if (row < 0 || row >= RecordCount())
        throw Failure::usual(FailureNumber::NoCurrentRow);
    return m_private->value(row, column);
}

QString Recordset::GetString()
{
    m_private->needOpen();
    writeWhatWaits();
    QString text;
    const int last = RecordCount();
    for (int row = std::max(m_private->rows.position(), 0); row < last; ++row) {
        for (int column = 0; column < fieldCount(); ++column)
            text += (column == 0 ? QString() : QStringLiteral(";")) + m_private->value(row, column).text();
        text += u'\r';
    }
    m_private->rows.moveTo(last);
    emit moveComplete();
    return text;
}

bool Recordset::isUpdatable() const
{
    return m_private->open && m_private->shape->updatable() && m_private->access != Access::ReadOnly;
}

void Recordset::addEditor(RowEditor &editor)
{
    m_editors.push_back(&editor);
}

void Recordset::removeEditor(RowEditor &editor)
{
    std::erase(m_editors, &editor);
}

void Recordset::letEditorsWrite()
{
    for (RowEditor *editor : m_editors)
        editor->writeTyped();
}

void Recordset::writeWhatWaits()
{
    letEditorsWrite();
    m_private->writePending();
}
