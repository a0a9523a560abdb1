#pragma once

#include <QObject>
#include <QString>

namespace quorvane {

// The one system-wide key of the app, Ctrl+Alt+Super+S, which opens Share Times while another
// application is in front. Holds its registration for as long as it lives; a combination
// that another program holds already just never fires.
class HotKey : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // The key reaches this app (as far as the desktop says).
    [[nodiscard]] virtual bool isRegistered() const = 0;

Q_SIGNALS:
    // The key was pressed. `activationToken` is the desktop's permission to raise a window,
    // where it gives one.
    void pressed(const QString &activationToken);
};

} // namespace quorvane
