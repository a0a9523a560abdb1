#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// Springs for QML animations. A spring is given as designers give it: its response (the
// period of the undamped oscillation, in seconds) and its damping fraction (1 settles without
// overshoot, below 1 overshoots a little). It is turned into an easing curve that starts at 0
// and ends at 1, and a duration long enough for the motion to come to rest:
//
//     NumberAnimation {
//         duration: Motion.springDuration(0.5, 1.0)
//         easing: Motion.spring(0.5, 1.0)
//     }
class Motion : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // Where a spring started at rest at 0 and released towards 1 is after `seconds`.
    [[nodiscard]] static double springPosition(double response, double dampingFraction, double seconds);
    // Milliseconds until the spring stays within half a percent of its target.
    Q_INVOKABLE [[nodiscard]] static int springDuration(double response, double dampingFraction);
    // The spring over springDuration() as a curve of cubic pieces, ending exactly at 1.
    Q_INVOKABLE [[nodiscard]] static QEasingCurve spring(double response, double dampingFraction);
};

} // namespace quorvane
