#pragma once

#include "onboarding/DeviceSignIn.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The phases of DeviceSignIn under names QML can reach: QML reads only capitalised enum keys,
// so `auth.phase === SignInPhase.Waiting`.
namespace SignInPhase {
Q_NAMESPACE
QML_ELEMENT

enum Phase {
    Idle = DeviceSignIn::idle,
    Starting = DeviceSignIn::starting,
    Waiting = DeviceSignIn::waiting,
    Done = DeviceSignIn::done,
    Failed = DeviceSignIn::failed,
};
Q_ENUM_NS(Phase)
} // namespace SignInPhase

} // namespace quorvane
