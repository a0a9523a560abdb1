#pragma once

#include <QByteArray>
#include <QString>

namespace quorvane::MachineInfo {

// What the server is told this device is called: the pretty host name, else the host name,
// else "Linux".
[[nodiscard]] QString deviceLabel();
// The same choice, from the text of /etc/machine-info and the host name.
[[nodiscard]] QString labelFrom(const QByteArray &machineInfo, const QString &hostName);
// The user this process runs as, for names that must differ between users of one machine.
[[nodiscard]] uint userId();

} // namespace quorvane::MachineInfo
