// A window on its small world, its controls by name, and hands to work them.
//
//   class PreferitiFormTest : public PlannerTest, protected FormHands<Preferiti>  // on the world of another fixture
//   class MyBrowseTest : public testing::Test, protected FormWorld<MyBrowse>      // on a world of its own
#pragma once

#include "platform/ui/FormRegistry.h"
#include "support/TestWorld.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <stdexcept>
#include <type_traits>

// A control of any window. Throws where there is none, which fails the test by the control's name.
template <class Control>
Control &controlOf(const QWidget &window, const QString &name)
{
    auto *found = window.findChild<Control *>(name);
    if (!found)
        throw std::logic_error("there is no control " + name.toStdString());
    return *found;
}

template <class F>
class FormHands
{
public:
    explicit FormHands(ModNetServer &modulo) : m_modulo(modulo)
    {
        host.report = [this](const Failure &failure) { failures.append(failure.words()); };
        addForm<F>();
    }

    // Lets another window be touched too.
    template <class Other>
    void addForm()
    {
        registry.setFactory<Other>([this] {
            if constexpr (std::is_constructible_v<Other, FormHost &, FormRegistry &, ModNetServer &>)
                return std::make_unique<Other>(host, registry, m_modulo);
            else
                return std::make_unique<Other>(host, m_modulo);
        });
    }

    F &form() { return registry.get<F>(); }
    bool isLoaded() const { return registry.isLoaded<F>(); }
    void show()
    {
        form().showModeless();
        QApplication::processEvents();
    }
    template <class Control>
    Control &control(const QString &name)
    {
        return controlOf<Control>(form(), name);
    }
    bool visible(const QString &name) { return !control<QWidget>(name).isHidden(); }
    QString text(const QString &name) // of a box or a label
    {
        const auto *box = form().template findChild<QLineEdit *>(name);
        return box ? box->text() : control<QLabel>(name).text();
    }
    void type(const QString &name, const QString &text) { control<QLineEdit>(name).setText(text); }
    void click(const QString &name)
    {
        auto &widget = control<QWidget>(name);
        if (auto *button = qobject_cast<QAbstractButton *>(&widget))
            button->click();
        else
            QTest::mouseClick(&widget, Qt::LeftButton);
        QApplication::processEvents();
    }
    void menu(const QString &entry)
    {
        control<QAction>(entry).trigger();
        QApplication::processEvents();
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) // pressed where the focus is
    {
        QTest::keyClick(form().focusWidget() ? form().focusWidget() : &form(), Qt::Key(key), modifiers);
        QApplication::processEvents();
    }
    // Captions and cells of a grid as it shows them, cells joined by " | ".
    QStringList captions(const QString &grid)
    {
        const QAbstractItemModel &model = *control<QTableView>(grid).model();
        QStringList all;
        for (int column = 0; column < model.columnCount(); ++column)
            all.append(model.headerData(column, Qt::Horizontal).toString());
        return all;
    }
    QStringList rows(const QString &grid)
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

    FormHost host;
    FormRegistry registry;
    QStringList failures; // that reached the guard, each by its words

private:
    ModNetServer &m_modulo;
};

// An archive and the household.
class HouseholdWorld
{
public:
    HouseholdWorld() : dati(world.openArchive()) { world.setHousehold(); }

    TestWorld world;
    Connection &dati;
};

template <class F>
class FormWorld : public HouseholdWorld, public FormHands<F>
{
public:
    FormWorld() : FormHands<F>(world.modulo) {}
};
