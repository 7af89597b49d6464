#include "platform/ui/FormRegistry.h"

FormRegistry::FormRegistry() = default;

FormRegistry::~FormRegistry()
{
    dropAll();
}

Form &FormRegistry::touch(std::type_index type)
{
    const auto found = m_forms.find(type);
    if (found != m_forms.end())
        return *found->second;

    // It is there before its load runs, so that what the load calls can touch it in turn.
    Form &form = *(m_forms[type] = m_factories.at(type)());
    QObject::connect(&form, &Form::unloaded, &form, [this, type] { drop(type); });
    try {
        form.load();
    } catch (...) {
        drop(type);
        throw;
    }
    return form;
}

void FormRegistry::drop(std::type_index type)
{
    const auto found = m_forms.find(type);
    if (found == m_forms.end())
        return;
    Form *form = found->second.release();
    m_forms.erase(found);
    std::erase_if(m_leaving, [](const QPointer<Form> &gone) { return gone.isNull(); });
    m_leaving.emplace_back(form);
    form->deleteWhenIdle();
}

void FormRegistry::dropAll()
{
    while (!m_forms.empty())
        drop(m_forms.begin()->first);
    for (const QPointer<Form> &form : std::exchange(m_leaving, {}))
        delete form.data();
}
