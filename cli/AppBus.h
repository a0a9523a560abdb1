#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quorvane::cli {

// The running Quorvane on the session bus: its Status properties and its actions.
class AppBus
{
public:
    static inline const QString service = QStringLiteral("com.peldrachen.quorvane");
    static inline const QString path = QStringLiteral("/com/peldrachen/quorvane");
    static inline const QString statusInterface = QStringLiteral("com.peldrachen.quorvane.Status");

    explicit AppBus(QDBusConnection bus = QDBusConnection::sessionBus());

    [[nodiscard]] QDBusConnection connection() const { return m_bus; }
    [[nodiscard]] bool isRunning() const;
    // Every Status property; no value when the app isn't running or doesn't answer.
    [[nodiscard]] std::optional<QVariantMap> status() const;

    // "main" raises the main window; any other name is one of the app's actions. The app is
    // started first when it isn't running. Empty when done, else what went wrong.
    [[nodiscard]] QString activate(const QString &action);

private:
    // D-Bus activation of the name, else `quorvane --hidden` beside this program or on PATH;
    // then waits for the name.
    [[nodiscard]] QString start();
    [[nodiscard]] QString call(const QString &method, const QVariantList &arguments) const;

    QDBusConnection m_bus;
};

} // namespace quorvane::cli
