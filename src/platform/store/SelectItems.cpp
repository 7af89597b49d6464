#include "platform/store/SelectItems.h"

namespace {

QChar closingOf(QChar open)
{
    return open == u'[' ? QChar(u']') : open;
}

bool opensQuoted(QChar sign)
{
    return sign == u'\'' || sign == u'"' || sign == u'[' || sign == u'`';
}

bool isWordAt(QStringView text, qsizetype at, QStringView word)
{
    const auto isName = [&](qsizetype i) {
        return i >= 0 && i < text.size() && (text[i].isLetterOrNumber() || text[i] == u'_');
    };
    return text.sliced(at).startsWith(word, Qt::CaseInsensitive) && !isName(at - 1) && !isName(at + word.size());
}

qsizetype behindQuoted(QStringView text, qsizetype at)
{
    const qsizetype end = text.indexOf(closingOf(text[at]), at + 1);
    return end < 0 ? text.size() : end + 1;
}

// Reads a select list item by item, brackets and literals taken whole.
QStringList splitItems(QStringView list)
{
    QStringList items;
    qsizetype start = 0;
    int depth = 0;
    qsizetype at = 0;
    while (at < list.size() && !(depth == 0 && isWordAt(list, at, u"FROM"))) {
        if (opensQuoted(list[at])) {
            at = behindQuoted(list, at);
            continue;
        }
        if (list[at] == u'(')
            ++depth;
        else if (list[at] == u')')
            --depth;
        else if (list[at] == u',' && depth == 0) {
            items << list.sliced(start, at - start).trimmed().toString();
            start = at + 1;
        }
        ++at;
    }
    items << list.sliced(start, at - start).trimmed().toString();
    return items;
}

bool isStar(const QString &item)
{
    return item.endsWith(u'*');
}

} // namespace

bool SelectHeads::isCallOf(int column, int columns, QStringView function) const
{
    const auto begins = [&](qsizetype item) {
        const QString &text = m_items[item];
        return text.startsWith(function, Qt::CaseInsensitive) &&
               QStringView(text).sliced(function.size()).trimmed().startsWith(u'(');
    };
    // A star stands for any number of columns, so that a column behind one is counted from the end.
    for (qsizetype item = 0; item < m_items.size() && !isStar(m_items[item]); ++item)
        if (item == column)
            return begins(item);
    for (qsizetype back = 1; back <= m_items.size() && !isStar(m_items[m_items.size() - back]); ++back)
        if (columns - back == column)
            return begins(m_items.size() - back);
    return false;
}

SelectHeads selectHeads(const QString &statement)
{
    QStringView list = QStringView(statement).trimmed();
    if (!list.startsWith(u"SELECT", Qt::CaseInsensitive))
        return SelectHeads({});
    list = list.sliced(6).trimmed();
    for (const QStringView word : {u"DISTINCT", u"ALL"})
        if (!list.isEmpty() && isWordAt(list, 0, word))
            list = list.sliced(word.size()).trimmed();
    return SelectHeads(splitItems(list));
}
