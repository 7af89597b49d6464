#include "platform/ui/CampoLegato.h"

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/ui/DataCombo.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kNoLimit = 32767; // what the toolkit's text box starts with

// The user has really gone elsewhere: no menu, list or message box has the keyboard for a while.
bool isLeaving(const QFocusEvent &event)
{
    switch (event.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return false;
    default:
        return true;
    }
}

// The failure with the name of its field.
Failure namingField(const Failure &failure, const QString &field)
{
    return Failure(failure.number(), failure.words() + QStringLiteral(" (campo %1)").arg(field), failure.statement());
}

} // namespace

CampoLegato::CampoLegato(QWidget *control, const QString &dataField)
    : QObject(control), m_control(control), m_field(dataField)
{
    control->installEventFilter(this);
}

CampoLegato::~CampoLegato()
{
    unfollow();
}

void CampoLegato::setDataSource(std::shared_ptr<Recordset> recordset)
{
    if (recordset != m_recordset) {
        unfollow();
        m_recordset = std::move(recordset);
        follow();
    }
    show();
}

void CampoLegato::unfollow()
{
    if (!m_recordset)
        return;
    m_recordset->removeEditor(*this);
    m_recordset->disconnect(this);
}

void CampoLegato::follow()
{
    if (!m_recordset)
        return;
    m_recordset->addEditor(*this);
    connect(m_recordset.get(), &Recordset::opened, this, &CampoLegato::show);
    connect(m_recordset.get(), &Recordset::moveComplete, this, &CampoLegato::show);
    connect(m_recordset.get(), &Recordset::rowChanged, this, &CampoLegato::showAgain);
}

// After a deletion the row that took its place is on show, though none is current.
int CampoLegato::row() const
{
    return m_recordset && m_recordset->isOpen() ? std::max(m_recordset->AbsolutePosition(), 0) - 1 : -1;
}

Value CampoLegato::value() const
{
    const int shown = row();
    if (shown < 0 || !m_recordset->hasField(m_field))
        return {};
    return m_recordset->valueAt(shown, m_recordset->fieldIndex(m_field));
}

void CampoLegato::show()
{
    {
        const QScopedValueRollback showing(m_showing, true);
        showValue(value());
    }
    setChanged(false);
}

void CampoLegato::showAgain()
{
    if (!m_changed)
        show();
}

void CampoLegato::controlChanged()
{
    if (!m_showing)
        setChanged(true);
}

void CampoLegato::setChanged(bool isChanged)
{
    if (m_changed == isChanged)
        return;
    m_changed = isChanged;
    emit changed();
}

// As by the Tab key, which selects the text.
void CampoLegato::takeFocus()
{
    m_control->setFocus(Qt::TabFocusReason);
}

void CampoLegato::write()
{
    if (!m_changed || !m_recordset || !m_recordset->isOpen())
        return;
    try {
        const int field = m_recordset->fieldIndex(m_field);
        if (shownText() != textOf(m_recordset->value(field)))
            m_recordset->setValue(field, typedValue(m_recordset->field(field).type));
    } catch (const Failure &failure) {
        if (failure.number() == FailureNumber::NoCurrentRow)
            show(); // there is nothing that it could ever be written to
        throw namingField(failure, m_field);
    }
    setChanged(false);
}

bool CampoLegato::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && isLeaving(*static_cast<QFocusEvent *>(event)))
        emit left();
    return QObject::eventFilter(watched, event);
}

CasellaLegata::CasellaLegata(QLineEdit *box, const QString &dataField) : CampoLegato(box, dataField), m_box(box)
{
    connect(box, &QLineEdit::textChanged, this, [this] { controlChanged(); });
}

void CasellaLegata::setMaxLength(int characters)
{
    m_maxLength = characters;
    showAgain();
}

// A text that is longer than the user may type is not cut.
void CasellaLegata::showValue(const Value &value)
{
    const QString text = value.text();
    m_box->setMaxLength(m_maxLength > 0 ? std::max(m_maxLength, int(text.size())) : kNoLimit);
    m_box->setText(text);
    m_box->setCursorPosition(0);
}

QString CasellaLegata::shownText() const
{
    return m_box->text();
}

Value CasellaLegata::typedValue(ColumnType type) const
{
    const QString text = m_box->text();
    const bool isText = type == ColumnType::Text || type == ColumnType::Memo;
    if (isText)
        return text;
    if (text.trimmed().isEmpty())
        return {};
    return type == ColumnType::Date ? Value(CDate(text)) : Value(NumeroCampo(text));
}

ComboLegato::ComboLegato(DataCombo *combo, const QString &dataField, const QString &listField,
                         const QString &boundColumn)
    : CampoLegato(combo, dataField), m_combo(combo), m_listField(listField), m_boundColumn(boundColumn)
{
    connect(combo, &DataCombo::picked, this, [this] { controlChanged(); });
    connect(combo, &DataCombo::textChanged, this, [this] { controlChanged(); });
}

void ComboLegato::setRowSource(std::shared_ptr<Recordset> list)
{
    m_list = std::move(list);
    m_combo->setRowSource(*m_list, m_listField);
    showAgain();
}

void ComboLegato::showValue(const Value &value)
{
    m_combo->setText(textOf(value));
}

QString ComboLegato::shownText() const
{
    return m_combo->text();
}

QString ComboLegato::textOf(const Value &value) const
{
    if (!m_list || value.isNull())
        return {};
    const int key = m_list->fieldIndex(m_boundColumn);
    for (int row = 0; row < m_list->RecordCount(); ++row) {
        if (m_list->valueAt(row, key).text() == value.text())
            return m_list->valueAt(row, m_list->fieldIndex(m_listField)).text();
    }
    return {};
}

Value ComboLegato::typedValue(ColumnType) const
{
    const QString name = m_combo->text().trimmed();
    if (name.isEmpty())
        return {};
    const int names = m_list ? m_list->fieldIndex(m_listField) : 0;
    for (int row = 0; m_list && row < m_list->RecordCount(); ++row) {
        if (m_list->valueAt(row, names).text().trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return m_list->valueAt(row, m_list->fieldIndex(m_boundColumn));
    }
    throw Failure::usual(FailureNumber::TypeMismatch, QStringLiteral("\"%1\" non è nell'elenco").arg(m_combo->text()));
}
