// A line drawing that fills its place and keeps its proportions, sharp at any scale.
#pragma once

#include <QWidget>

class QSvgRenderer;

class Disegno : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString file READ file WRITE setFile)

public:
    explicit Disegno(QWidget *parent = nullptr);

    QString file() const { return m_file; }
    void setFile(const QString &file); // an SVG
    QSize sizeHint() const override;

    // The drawing as an icon of the usual sizes.
    static QIcon icon(const QString &file);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QString m_file;
    QSvgRenderer *m_renderer;
};
