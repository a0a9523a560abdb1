#pragma once

#include <QString>
#include <QUrl>

namespace quorvane {

// The server's answer to a device sign-in's first step: the code the flow polls with, the
// code the person confirms, and the page where they confirm it.
struct DeviceCodes {
    QString deviceCode;
    QString userCode;
    QUrl page;
};

} // namespace quorvane
