// The forms that exist: one object a class, made and loaded at the first touch, dropped at unload.
#pragma once

#include "platform/ui/Form.h"

#include <functional>
#include <map>
#include <memory>
#include <typeindex>

class FormRegistry
{
public:
    FormRegistry();
    ~FormRegistry();

    template <class F>
    void setFactory(std::function<std::unique_ptr<F>()> make)
    {
        m_factories[typeid(F)] = [make = std::move(make)]() -> std::unique_ptr<Form> { return make(); };
    }
    // The form, made and loaded where it is not there yet. A failing load drops it again and throws.
    template <class F>
    F &get()
    {
        return static_cast<F &>(touch(typeid(F)));
    }
    template <class F>
    bool isLoaded() const
    {
        return m_forms.count(typeid(F)) != 0;
    }
    void dropAll();

private:
    Form &touch(std::type_index type);

    std::map<std::type_index, std::function<std::unique_ptr<Form>()>> m_factories;
    std::map<std::type_index, std::unique_ptr<Form>> m_forms;
};
