// What an eye can read off a form or control.
#pragma once

#include "Names.h"

#include <QJsonValue>

// `property` as in the list of properties; "" is the one that suits the kind of control. Throws Wrong where the target
// has no such property.
QJsonValue propertyOf(const Target &target, const QString &property);

// A JSON value as one line of text.
QString jsonText(const QJsonValue &value);
// The value that a text of JSON tells; undefined where it is none.
QJsonValue jsonValue(const QString &text);
