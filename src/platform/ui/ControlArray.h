// The elements NAME_0, NAME_1, ... of a control array of a form, by index.
#pragma once

#include <QWidget>

#include <map>

template <class Control>
class ControlArray
{
public:
    ControlArray(QWidget *form, const QString &name)
    {
        for (Control *control : form->findChildren<Control *>()) {
            const QString object = control->objectName();
            if (!object.startsWith(name + '_'))
                continue;
            bool isIndex = false;
            const int index = object.mid(name.size() + 1).toInt(&isIndex);
            if (isIndex)
                m_controls[index] = control;
        }
    }

    Control *operator[](int index) const { return m_controls.at(index); } // throws where there is no such element
    auto begin() const { return m_controls.begin(); }                     // pairs of index and control
    auto end() const { return m_controls.end(); }
    int size() const { return int(m_controls.size()); }

private:
    std::map<int, Control *> m_controls;
};
