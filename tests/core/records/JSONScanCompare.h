#pragma once

#include "JSONScan.h"

#include <QJsonArray>
#include <QJsonObject>

namespace quorvane::test {

// Whether the scanned value is the same, all through, as the one QJsonDocument read.
inline bool sameValue(const JSONScan::Value &scanned, const QJsonValue &read)
{
    switch (scanned.kind()) {
    case JSONScan::Kind::missing:
        return read.isUndefined();
    case JSONScan::Kind::null:
        return read.isNull();
    case JSONScan::Kind::boolean:
        return read.isBool() && read.toBool() == scanned.boolean();
    case JSONScan::Kind::text:
        return read.isString() && read.toString() == scanned.text();
    case JSONScan::Kind::number:
        return read.isDouble() && scanned.toJsonValue() == read;
    case JSONScan::Kind::array: {
        const std::vector<JSONScan::Value> elements = scanned.elements();
        const QJsonArray array = read.toArray();
        if (!read.isArray() || qsizetype(elements.size()) != array.size())
            return false;
        for (qsizetype i = 0; i < array.size(); ++i) {
            if (!sameValue(elements[size_t(i)], array.at(i)))
                return false;
        }
        return true;
    }
    case JSONScan::Kind::object: {
        const auto members = scanned.members();
        const QJsonObject object = read.toObject();
        if (!read.isObject() || qsizetype(members.size()) != object.size())
            return false;
        for (const auto &[key, value] : members) {
            if (!object.contains(key) || !sameValue(value, object.value(key)))
                return false;
        }
        return true;
    }
    }
    return false;
}

} // namespace quorvane::test
