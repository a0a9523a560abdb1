#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace quorvane {

// The application's windows. QML writes AppWindow.Share; the command line and a second
// launch name them by word ("share"), which only this namespace turns into an id.
namespace AppWindow {
Q_NAMESPACE
QML_ELEMENT

enum Id { Main, Share, Onboarding, About, Settings };
Q_ENUM_NS(Id)

[[nodiscard]] QString name(Id window);
[[nodiscard]] std::optional<Id> fromName(const QString &name);
[[nodiscard]] QList<Id> all();
} // namespace AppWindow

} // namespace quorvane
