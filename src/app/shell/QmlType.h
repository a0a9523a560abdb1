#pragma once

#include <QByteArray>
#include <QString>

namespace quorvane {

// A QML type by its module and name, as a declared import reaches it: {"Quorvane.Today",
// "TodayView"}. Null where a view has no module yet.
struct QmlType {
    QString module;
    QString name;

    [[nodiscard]] bool isNull() const { return module.isEmpty() || name.isEmpty(); }
    // A document that makes one of it: "import Quorvane.Today\nTodayView {}".
    [[nodiscard]] QByteArray document() const;
    friend bool operator==(const QmlType &, const QmlType &) = default;
};

} // namespace quorvane
