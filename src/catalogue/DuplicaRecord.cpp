#include "catalogue/DuplicaRecord.h"

#include "core/Helpers.h"

#include <utility>
#include <vector>

void DuplicaRecord(ModNetServer &modulo, Recordset &recordset, const QString &tabella)
{
    std::vector<std::pair<QString, Value>> copied;
    for (int i = 0; i < recordset.fieldCount(); ++i) {
        const Value value = recordset.value(i);
        if (!value.text().trimmed().isEmpty())
            copied.emplace_back(recordset.field(i).name, value);
    }
    recordset.AddNew();
    recordset.setValue("Id", NuovoId(modulo, tabella));
    for (const auto &[name, value] : copied) {
        if (name.toUpper() != "ID")
            recordset.setValue(name, value);
    }
    recordset.Update();
}
