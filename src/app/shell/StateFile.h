#pragma once

#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTimer>

namespace quorvane {

class AppModel;

// What the user could see of the app, kept in a small JSON file for tests that drive the real
// program from outside (`quorvane --state-file PATH`): signed in or not, offline, the banner,
// the sign-in hero, the bookings shown, the last good sync, and each announcement made. The
// file is replaced whole at each change, readable by the user alone.
class StateFile : public QObject
{
    Q_OBJECT

public:
    StateFile(const AppModel &app, QString path, QObject *parent = nullptr);

    [[nodiscard]] QJsonObject state() const;

private:
    void write();

    const AppModel &m_app;
    QString m_path;
    QTimer m_pending;                // one write per turn of the event loop, however many changes it had
    QHash<QString, int> m_announced; // "ID booked" or "ID cancelled": how many times
    QByteArray m_written;
};

} // namespace quorvane
