// What the tests of the catalogue's windows share: an archive, the household, and the controls by name.
#pragma once

#include "catalogue/CatalogueRows.h"
#include "platform/ui/FormRegistry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

template <class F>
class FormWorld
{
public:
    FormWorld() : dati(world.openArchive())
    {
        world.setHousehold();
        host.report = [this](const Failure &failure) { failures.append(failure.words()); };
        registry.setFactory<F>([this] { return std::make_unique<F>(host, registry, world.modulo); });
    }

    F &form() { return registry.template get<F>(); }
    void show()
    {
        form().showModeless();
        QApplication::processEvents();
    }
    bool isLoaded() const { return registry.template isLoaded<F>(); }
    template <class Control>
    Control &control(const char *name)
    {
        auto *found = form().template findChild<Control *>(name);
        if (!found)
            throw std::logic_error(name);
        return *found;
    }
    QString text(const char *name)
    {
        const auto *box = form().template findChild<QLineEdit *>(name);
        return box ? box->text() : control<QLabel>(name).text();
    }
    void type(const char *name, const QString &text) { control<QLineEdit>(name).setText(text); }
    void click(const char *name)
    {
        auto &widget = control<QWidget>(name);
        if (auto *button = qobject_cast<QAbstractButton *>(&widget))
            button->click();
        else
            QTest::mouseClick(&widget, Qt::LeftButton);
    }
    bool visible(const char *name) { return !control<QWidget>(name).isHidden(); }
    // Captions and cells of a grid as it shows them, cells joined by " | ".
    QStringList captions(const char *grid)
    {
        const QAbstractItemModel &model = *control<QTableView>(grid).model();
        QStringList all;
        for (int column = 0; column < model.columnCount(); ++column)
            all.append(model.headerData(column, Qt::Horizontal).toString());
        return all;
    }
    QStringList rows(const char *grid)
    {
        const QAbstractItemModel &model = *control<QTableView>(grid).model();
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells.append(model.index(row, column).data().toString());
            all.append(cells.join(" | "));
        }
        return all;
    }
    void key(Qt::Key key) { QTest::keyClick(form().focusWidget() ? form().focusWidget() : &form(), key); }

    TestWorld world;
    Connection &dati;
    FormHost host;
    FormRegistry registry;
    QStringList failures;
};
