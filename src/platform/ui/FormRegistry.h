// The forms that exist: one object a class, made and loaded at the first touch, dropped at unload.
#pragma once

#include "platform/ui/Form.h"

#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <typeindex>
#include <vector>

class FormRegistry
{
public:
    FormRegistry();
    ~FormRegistry();
    FormRegistry(const FormRegistry &) = delete;
    FormRegistry &operator=(const FormRegistry &) = delete;

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
    // Deletes every form, also those that still wait for their handlers: only where no handler runs any more.
    void dropAll();

private:
    Form &touch(std::type_index type);
    void drop(std::type_index type);

    std::map<std::type_index, std::function<std::unique_ptr<Form>()>> m_factories;
    std::map<std::type_index, std::unique_ptr<Form>> m_forms;
    std::vector<QPointer<Form>> m_leaving; // unloaded, but with handlers still at work
};
