#include "platform/ui/DataGrid.h"

#include "platform/ui/CellDelegate.h"
#include "platform/ui/Form.h"
#include "platform/ui/GridHeader.h"

#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <map>

namespace {

constexpr int kMeasuredRows = 60; // enough to find good widths, whatever the length of the set
constexpr int kWidest = 320;      // pixels; longer texts are elided
constexpr int kNarrowest = 100;   // of a text column that makes room for the others
constexpr int kRowPadding = 10;   // over and under the text of a row
// Captions of numbers give way to the names of dishes and foods: first down to the one width, at last to the other.
constexpr int kCaptionGivesFirst = 108;
constexpr int kCaptionGivesLast = 74;

} // namespace

struct DataGrid::Private
{
    RecordsetModel *model = nullptr;
    GridHeader *header = nullptr;
    FormHost *host = nullptr;
    bool following = false;      // the current row is set because the record set moved
    bool fitting = false;        // column widths are being set by the grid itself
    bool sizedByUser = false;    // the user has dragged a column: its widths stay
    std::vector<QString> fitted; // the fields that the widths were found for
};

DataGrid::DataGrid(QWidget *parent) : QTableView(parent), m_private(std::make_unique<Private>())
{
    m_private->model = new RecordsetModel(this);
    m_private->model->setWriter([this](int row, int field, const Value &value) { return write(row, field, value); });
    m_private->header = new GridHeader(this);
    setHorizontalHeader(m_private->header);
    // The view leaves a row that is being deleted by itself; that moves no record set. The model tells us before the
    // view's own selection, since we are connected first.
    connect(m_private->model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { m_private->following = true; });
    setModel(m_private->model);
    connect(m_private->model, &QAbstractItemModel::rowsRemoved, this, [this] { m_private->following = false; });
    setItemDelegate(new CellDelegate(*m_private->model, this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // For the cells that can be edited: the others have no such flag.
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!m_private->fitting)
            m_private->sizedByUser = true;
    });
    // Scrolling shifts what the header shows; its title stays.
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, m_private->header->viewport(),
            qOverload<>(&QWidget::update));
    connect(m_private->model, &QAbstractItemModel::modelReset, this, [this] {
        fitColumns();
        followRecordset();
    });
}

DataGrid::~DataGrid()
{
    m_private->model->setRecordset(nullptr);
}

void DataGrid::setColumns(std::vector<GridColumn> columns)
{
    m_private->fitted.clear();
    m_private->model->setColumns(std::move(columns));
}

void DataGrid::setCaption(int column, const QString &caption)
{
    m_private->model->setCaption(column, caption);
    m_private->fitted.clear();
    fitColumns();
}

void DataGrid::setCaption(const QString &caption)
{
    m_private->header->setTitle(caption);
    setAccessibleDescription(caption);
    updateGeometries();
}

QString DataGrid::caption() const
{
    return m_private->header->title();
}

void DataGrid::setDataSource(std::shared_ptr<Recordset> recordset)
{
    if (m_private->model->recordset())
        m_private->model->recordset()->disconnect(this);
    Recordset *const shown = recordset.get();
    m_private->model->setRecordset(std::move(recordset));
    if (shown)
        connect(shown, &Recordset::moveComplete, this, &DataGrid::followRecordset);
    followRecordset();
}

std::shared_ptr<Recordset> DataGrid::dataSource() const
{
    return m_private->model->recordset();
}

void DataGrid::refresh()
{
    m_private->model->refresh();
    followRecordset();
}

void DataGrid::setRowColour(std::function<QColor(const Recordset &, int row)> colour)
{
    m_private->model->setRowColour(std::move(colour));
}

void DataGrid::setHost(FormHost *host)
{
    m_private->host = host;
}

bool DataGrid::cancelEdit()
{
    if (state() != QAbstractItemView::EditingState)
        return false;
    QWidget *const editor = indexWidget(currentIndex());
    if (editor)
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    return editor != nullptr;
}

QString DataGrid::columnField(int column) const
{
    const auto &columns = m_private->model->columns();
    return column >= 0 && column < int(columns.size()) ? columns[std::size_t(column)].field : QString();
}

FormHost *DataGrid::host() const
{
    if (m_private->host)
        return m_private->host;
    const auto *form = qobject_cast<Form *>(window());
    return form ? &form->host() : nullptr;
}

void DataGrid::followRecordset()
{
    const QScopedValueRollback following(m_private->following, true);
    const std::shared_ptr<Recordset> recordset = dataSource();
    const int row = recordset && recordset->isOpen() ? recordset->AbsolutePosition() - 1 : -1;
    const QModelIndex current = currentIndex();
    if (row < 0 || row >= model()->rowCount()) {
        clearSelection();
        setCurrentIndex({});
    } else if (current.row() != row || !selectionModel()->isRowSelected(row)) {
        setCurrentIndex(model()->index(row, std::max(current.column(), 0)));
        selectRow(row);
    }
}

// The view has moved to another row by mouse or key: the record set goes there too.
void DataGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (m_private->following || !current.isValid() || current.row() == previous.row())
        return;
    moveOrTell(current.row());
}

// Where the record set could not move the grid goes back to its row, once the view has finished choosing the new one.
void DataGrid::moveOrTell(int row)
{
    FormHost *const guard = host();
    if (!guard) {
        moveRecordset(row);
        return;
    }
    guard->guarded([this, guard, row] {
        try {
            moveRecordset(row);
        } catch (const Failure &failure) {
            QMetaObject::invokeMethod(
                this, [this, guard, failure] { afterFailure(*guard, failure); }, Qt::QueuedConnection);
            throw;
        }
    });
    followRecordset();
}

void DataGrid::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<DataGrid> alive(this);
    QTableView::mouseReleaseEvent(event);
    if (alive && event->button() == Qt::LeftButton)
        emit Click();
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<DataGrid> alive(this);
    QTableView::mouseDoubleClickEvent(event);
    if (alive && event->button() == Qt::LeftButton)
        emit DblClick();
}

void DataGrid::moveRecordset(int row)
{
    const std::shared_ptr<Recordset> recordset = dataSource();
    if (!recordset || !recordset->isOpen() || recordset->AbsolutePosition() == row + 1)
        return;
    if (recordset->AbsolutePosition() < 1)
        recordset->MoveFirst();
    if (const int distance = row + 1 - recordset->AbsolutePosition())
        recordset->Move(distance);
}

bool DataGrid::write(int row, int field, const Value &value)
{
    const std::shared_ptr<Recordset> recordset = dataSource();
    try {
        moveRecordset(row);
    } catch (const Failure &failure) { // something else waits to be written, and goes on waiting
        tell(failure);
        return false;
    }
    try {
        recordset->setValue(field, value);
        recordset->Update();
        return true;
    } catch (const Failure &failure) {
        recordset->CancelUpdate();
        tell(failure);
        return false;
    }
}

// A box of its own takes the focus, so it comes up once the cell's editor is gone.
void DataGrid::tell(const Failure &failure)
{
    FormHost *const guard = host();
    if (!guard)
        throw failure;
    QMetaObject::invokeMethod(
        this,
        [this, guard, failure] {
            guard->guarded([&failure] { throw failure; });
            afterFailure(*guard, failure);
        },
        Qt::QueuedConnection);
}

// Called from the event loop, which must see no exception: reading again may fail in its turn.
void DataGrid::afterFailure(FormHost &guard, const Failure &failure)
{
    const std::shared_ptr<Recordset> recordset = dataSource();
    if (failure.number() == FailureNumber::RowChanged && recordset && recordset->isOpen())
        guard.guarded([&recordset] { recordset->Resync(); });
    followRecordset();
}

// Widths are found once for a set of columns, from the first rows; a new set of the same columns keeps them.
void DataGrid::fitColumns()
{
    std::vector<QString> fields;
    for (const GridColumn &column : m_private->model->columns())
        fields.push_back(column.field);
    if (fields == m_private->fitted && m_private->sizedByUser)
        return;
    if (fields != m_private->fitted)
        m_private->sizedByUser = false;
    {
        const QScopedValueRollback fitting(m_private->fitting, true);
        for (int column = 0; column < model()->columnCount(); ++column) {
            const int wanted = std::max(sizeHintForColumn(column), m_private->header->captionWidth(column));
            setColumnWidth(column, std::min(wanted, kWidest));
        }
    }
    if (model()->rowCount() > 0)
        m_private->fitted = fields;
    fillWidth();
}

// What is left of the width goes to the text columns, in equal parts.
void DataGrid::fillWidth()
{
    const int left = viewport()->width() - horizontalHeader()->length();
    if (m_private->sizedByUser)
        return;
    const QScopedValueRollback fitting(m_private->fitting, true);
    if (left < 0) {
        makeRoom(-left);
        return;
    }
    const std::vector<int> texts = textColumns();
    const int count = int(texts.size());
    for (int i = 0; i < count; ++i)
        setColumnWidth(texts[std::size_t(i)], columnWidth(texts[std::size_t(i)]) + left / count + (i < left % count));
}

// What is missing comes from the captions of numbers and from the texts. Where that is too little, the grid scrolls and
// all keep their width.
void DataGrid::makeRoom(int excess)
{
    std::map<int, int> captionsFirst, captionsLast, texts; // the narrowest width of each column that can give
    for (const int column : textColumns())
        texts[column] = std::max(kNarrowest, m_private->header->captionWidth(column));
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (isColumnHidden(column) || !m_private->model->isNumber(column))
            continue;
        const int content = sizeHintForColumn(column);
        captionsFirst[column] = std::max(content, kCaptionGivesFirst);
        captionsLast[column] = std::max(content, kCaptionGivesLast);
    }
    if (spareOf(texts) + spareOf(captionsLast) < excess)
        return;
    for (const auto *narrowest : {&captionsFirst, &texts, &captionsLast})
        excess = squeeze(*narrowest, excess);
}

int DataGrid::spareOf(const std::map<int, int> &narrowest) const
{
    int spare = 0;
    for (const auto &[column, width] : narrowest)
        spare += std::max(columnWidth(column) - width, 0);
    return spare;
}

// Takes up to `excess` pixels off, each from the column that is the widest then, and gives how many are left.
int DataGrid::squeeze(const std::map<int, int> &narrowest, int excess)
{
    std::map<int, int> giving;
    for (const auto &[column, width] : narrowest) {
        if (columnWidth(column) > width)
            giving[column] = columnWidth(column);
    }
    std::map<int, int> found = giving;
    const auto narrower = [](const auto &a, const auto &b) { return a.second < b.second; };
    for (; excess > 0 && !giving.empty(); --excess) {
        const auto widest = std::max_element(giving.begin(), giving.end(), narrower);
        found[widest->first] = --widest->second;
        if (widest->second <= narrowest.at(widest->first))
            giving.erase(widest);
    }
    for (const auto &[column, width] : found)
        setColumnWidth(column, width);
    return excess;
}

std::vector<int> DataGrid::textColumns() const
{
    std::vector<int> texts;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (!isColumnHidden(column) && !m_private->model->isNumber(column) && !m_private->model->isYesNo(column))
            texts.push_back(column);
    }
    return texts;
}

void DataGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (!m_private->sizedByUser)
        fitColumns();
}
