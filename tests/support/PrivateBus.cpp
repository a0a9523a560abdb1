#include "PrivateBus.h"

#include <QFile>

namespace quorvane::test {

namespace {

QString config(const QString &socket, const QString &servicesDir)
{
    QString text = QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
                                  " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                                  "<busconfig>\n"
                                  "  <type>session</type>\n"
                                  "  <listen>unix:path=%1</listen>\n"
                                  "  <auth>EXTERNAL</auth>\n"
                                  "  <policy context=\"default\">\n"
                                  "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                                  "    <allow eavesdrop=\"true\"/>\n"
                                  "    <allow own=\"*\"/>\n"
                                  "  </policy>\n")
                       .arg(socket);
    if (!servicesDir.isEmpty())
        text += QStringLiteral("  <servicedir>%1</servicedir>\n").arg(servicesDir);
    return text + QStringLiteral("</busconfig>\n");
}

} // namespace

PrivateBus::PrivateBus(const QString &servicesDir)
{
    const QString configPath = m_dir.filePath(QStringLiteral("bus.conf"));
    QFile file(configPath);
    if (!m_dir.isValid() || !file.open(QIODevice::WriteOnly)) {
        m_error = QStringLiteral("cannot write the bus configuration");
        return;
    }
    file.write(config(m_dir.filePath(QStringLiteral("socket")), servicesDir).toUtf8());
    file.close();

    m_daemon.setProcessChannelMode(QProcess::SeparateChannels);
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + configPath,
                                                   QStringLiteral("--print-address"), QStringLiteral("--nofork")});
    if (!m_daemon.waitForStarted(5000)) {
        m_error = m_daemon.errorString();
        return;
    }
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(5000)) {}
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    if (m_address.isEmpty())
        m_error = QString::fromUtf8(m_daemon.readAllStandardError());
}

PrivateBus::~PrivateBus()
{
    for (const QString &name : std::as_const(m_connections))
        QDBusConnection::disconnectFromBus(name);
    if (m_daemon.state() != QProcess::NotRunning) {
        m_daemon.terminate();
        if (!m_daemon.waitForFinished(5000))
            m_daemon.kill();
        m_daemon.waitForFinished(1000);
    }
}

QDBusConnection PrivateBus::connect(const QString &label)
{
    // Connection names are global to the process, and a reused one would reach an old bus.
    static int serial = 0;
    const QString name = QStringLiteral("quorvane-test-%1-%2").arg(label).arg(++serial);
    m_connections.append(name);
    return QDBusConnection::connectToBus(m_address, name);
}

void PrivateBus::disconnect(const QDBusConnection &connection)
{
    m_connections.removeAll(connection.name());
    QDBusConnection::disconnectFromBus(connection.name());
}

} // namespace quorvane::test
