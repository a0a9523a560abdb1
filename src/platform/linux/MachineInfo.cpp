#include "linux/MachineInfo.h"

#include <QFile>
#include <QSysInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quorvane::MachineInfo {

namespace {
// Shell-style value of an env file: quotes stripped, backslash escapes resolved.
QString unquoted(QString value)
{
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front()) {
        const bool literal = value.front() == u'\'';
        value = value.mid(1, value.size() - 2);
        if (literal)
            return value;
    }
    QString out;
    bool escaped = false;
    for (const QChar ch : std::as_const(value)) {
        if (!escaped && ch == u'\\') {
            escaped = true;
            continue;
        }
        out += ch;
        escaped = false;
    }
    return out;
}
} // namespace

QString deviceLabel()
{
    // What `hostnamectl --pretty` shows is kept in this file; reading it needs no bus.
    QFile file(u"/etc/machine-info"_s);
    const QByteArray machineInfo = file.open(QIODevice::ReadOnly) ? file.read(64 * 1024) : QByteArray();
    return labelFrom(machineInfo, QSysInfo::machineHostName());
}

QString labelFrom(const QByteArray &machineInfo, const QString &hostName)
{
    QString pretty;
    for (const QByteArray &raw : machineInfo.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith("PRETTY_HOSTNAME=")) // the last one counts, as in a shell
            pretty = unquoted(QString::fromUtf8(line.mid(16))).trimmed();
    }
    if (!pretty.isEmpty())
        return pretty;
    if (!hostName.trimmed().isEmpty())
        return hostName.trimmed();
    return u"Linux"_s;
}

uint userId()
{
    return ::getuid();
}

} // namespace quorvane::MachineInfo
