// The captions of a grid's columns, and over them the title of the grid, where it has one. A caption takes up to two
// lines; where that is not enough it is cut, and the pointer shows it whole.
#pragma once

#include <QHeaderView>

class GridHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit GridHeader(QWidget *parent = nullptr);

    void setTitle(const QString &title);
    const QString &title() const { return m_title; }
    QSize sizeHint() const override;
    // The lines of a column's caption as they are shown.
    QStringList righe(int column) const;
    // The width that a column's caption needs, folded where that makes it narrowest.
    int captionWidth(int column) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    QFont titleFont() const;
    QFontMetrics captionMetrics() const;
    QString captionOf(int column) const;
    int titleHeight() const; // 0 without a title

    QString m_title;
};
