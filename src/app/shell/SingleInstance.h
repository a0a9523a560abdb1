#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

namespace quorvane {

// One Quorvane per user and session where there is no session bus (with one, the bus name
// decides: see Activation). The first launch listens on a local socket; a later
// launch hands its request (a window id) to it and ends. The running instance answers each
// request with "ok" once it has passed it on, so a launch that hears nothing goes on by itself.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    // `socketPath`: where the running instance listens; defaultPath() for the app.
    explicit SingleInstance(QString socketPath, QObject *parent = nullptr);
    ~SingleInstance() override;

    // The path for this process's runtime and settings folders.
    [[nodiscard]] static QString defaultPath();
    // <runtime>/<app id>.instance (the runtime folder is private to the user), else a name in
    // the temp folder that carries the user id. Settings in a folder other than ~/.config add
    // a hash of it to the name: they make an instance of their own.
    [[nodiscard]] static QString pathFor(const QString &runtimeDir, const QString &configDir);

    // The launch's one call: true when a running instance took `request` and this process is
    // done; otherwise this process is the running instance from now on (or, where the socket
    // can't be made, runs on its own).
    [[nodiscard]] bool handOver(const QString &request);
    // Hands `request` to the running instance; true once it confirmed. Blocks up to `timeoutMs`.
    [[nodiscard]] bool forward(const QString &request, int timeoutMs = 2000) const;
    // Becomes the running instance. A socket left behind by an instance that died is taken
    // over; false when another live instance holds it or the socket can't be made.
    bool listen();
    [[nodiscard]] bool isListening() const;
    [[nodiscard]] const QString &path() const { return m_path; }

Q_SIGNALS:
    // Another launch asked for the window with this id.
    void requested(const QString &windowId);

private:
    void accept();

    QString m_path;
    QLocalServer *m_server = nullptr;
};

} // namespace quorvane
