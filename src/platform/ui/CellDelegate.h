// How the cells of a grid are shown and edited: yes/no fields as ticks, columns with a list by a combo box.
#pragma once

#include <QStyledItemDelegate>

class QComboBox;
class RecordsetModel;

class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CellDelegate(const RecordsetModel &model, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    QComboBox *createList(QWidget *parent, const QStringList &items) const;

    const RecordsetModel &m_model;
};
