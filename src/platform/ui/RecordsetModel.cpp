#include "platform/ui/RecordsetModel.h"

#include "platform/ui/Scritte.h"

RecordsetModel::RecordsetModel(QObject *parent) : QAbstractTableModel(parent) {}

void RecordsetModel::setColumns(std::vector<GridColumn> columns)
{
    m_allFields = columns.empty();
    m_columns = std::move(columns);
    reset();
}

void RecordsetModel::setCaption(int column, const QString &caption)
{
    if (column < 0 || column >= columnCount())
        return;
    m_columns[std::size_t(column)].caption = caption;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

void RecordsetModel::setRecordset(std::shared_ptr<Recordset> recordset)
{
    if (m_recordset)
        m_recordset->disconnect(this);
    m_recordset = std::move(recordset);
    reset();
    if (!m_recordset)
        return;
    connect(m_recordset.get(), &Recordset::opened, this, &RecordsetModel::reset);
    connect(m_recordset.get(), &Recordset::rowChanged, this, [this](int row) {
        if (row >= 0 && row < m_rows)
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    });
    connect(m_recordset.get(), &Recordset::rowInserted, this, [this](int row) {
        beginInsertRows({}, row, row);
        ++m_rows;
        endInsertRows();
    });
    connect(m_recordset.get(), &Recordset::rowRemoved, this, [this](int row) {
        beginRemoveRows({}, row, row);
        --m_rows;
        endRemoveRows();
    });
}

void RecordsetModel::setRowColour(RowColour colour)
{
    m_colour = std::move(colour);
    refresh();
}

void RecordsetModel::refresh()
{
    const int rows = m_recordset && m_recordset->isOpen() ? m_recordset->RecordCount() : 0;
    if (rows != m_rows)
        reset();
    else if (rows > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

void RecordsetModel::reset()
{
    beginResetModel();
    const bool open = m_recordset && m_recordset->isOpen();
    if (m_allFields) {
        m_columns.clear();
        for (int i = 0; open && i < m_recordset->fieldCount(); ++i)
            m_columns.push_back({m_recordset->field(i).name, m_recordset->field(i).name});
    }
    m_fields.assign(m_columns.size(), -1);
    for (std::size_t i = 0; open && i < m_columns.size(); ++i) {
        if (m_allFields)
            m_fields[i] = int(i);
        else if (m_recordset->hasField(m_columns[i].field))
            m_fields[i] = m_recordset->fieldIndex(m_columns[i].field);
    }
    m_rows = open ? m_recordset->RecordCount() : 0;
    endResetModel();
}

const FieldInfo *RecordsetModel::fieldOf(int column) const
{
    const int field = m_fields[std::size_t(column)];
    return field >= 0 && m_recordset && m_recordset->isOpen() ? &m_recordset->field(field) : nullptr;
}

bool RecordsetModel::isNumber(int column) const
{
    const FieldInfo *const field = fieldOf(column);
    return field && (field->type == ColumnType::Number || field->type == ColumnType::Long);
}

bool RecordsetModel::isYesNo(int column) const
{
    const FieldInfo *const field = fieldOf(column);
    return field && field->type == ColumnType::Boolean;
}

bool RecordsetModel::isEditable(int column) const
{
    return m_writer && fieldOf(column) && m_columns[std::size_t(column)].edit != CellEdit::ReadOnly &&
           m_recordset->isUpdatable();
}

int RecordsetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int RecordsetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

// A set that was closed or shortened under the view shows nothing until its notice arrives.
bool RecordsetModel::isShown(int row, int column) const
{
    return m_recordset && m_recordset->isOpen() && row < m_recordset->RecordCount() &&
           m_fields[std::size_t(column)] >= 0;
}

QString RecordsetModel::shownText(int row, int column) const
{
    const QString text = m_recordset->valueAt(row, m_fields[std::size_t(column)]).text();
    for (const QString &entry : m_columns[std::size_t(column)].list)
        if (entry.compare(text, Qt::CaseInsensitive) == 0)
            return entry;
    return text;
}

QVariant RecordsetModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !isShown(index.row(), index.column()))
        return {};
    switch (role) {
    case Qt::ToolTipRole: // a long name may be cut
        if (isNumber(index.column()) || isYesNo(index.column()))
            return {};
        return Scritte::suggerimento(shownText(index.row(), index.column()));
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (isYesNo(index.column()))
            return {};
        return shownText(index.row(), index.column());
    case Qt::CheckStateRole:
        if (!isYesNo(index.column()))
            return {};
        return m_recordset->valueAt(index.row(), m_fields[std::size_t(index.column())]).yes() ? Qt::Checked
                                                                                              : Qt::Unchecked;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::BackgroundRole:
        if (m_colour) {
            const QColor colour = m_colour(*m_recordset, index.row());
            return colour.isValid() ? QVariant(colour) : QVariant();
        }
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags RecordsetModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    if (!index.isValid() || !isEditable(index.column()))
        return usual;
    return usual | (isYesNo(index.column()) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool RecordsetModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || !isShown(index.row(), index.column()) || !isEditable(index.column()))
        return false;
    const int field = m_fields[std::size_t(index.column())];
    if (role == Qt::CheckStateRole && isYesNo(index.column()))
        return m_writer(index.row(), field, Value(value.toInt() == Qt::Checked));
    if (role == Qt::EditRole && value.toString() != data(index, Qt::EditRole).toString())
        return m_writer(index.row(), field, Value(value.toString()));
    return false;
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[std::size_t(section)].caption;
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter) | int(Qt::TextWordWrap) | int(isNumber(section) ? Qt::AlignRight : Qt::AlignLeft);
    return {};
}
