// The captions of a grid's columns, and over them the title of the grid, where it has one.
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

protected:
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    QFont titleFont() const;
    int titleHeight() const; // 0 without a title

    QString m_title;
};
