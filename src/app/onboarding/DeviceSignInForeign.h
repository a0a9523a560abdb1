#pragma once

#include "onboarding/DeviceSignIn.h"

#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// Makes DeviceSignIn, its phases and properties known to QML, where the sign-in panel holds
// one; QML can't make one itself, since it needs the network, keyring and browser.
struct DeviceSignInForeign {
    Q_GADGET
    QML_FOREIGN(quorvane::DeviceSignIn)
    QML_NAMED_ELEMENT(DeviceSignIn)
    QML_UNCREATABLE("Made by Setup.createSignIn().")
};

} // namespace quorvane
