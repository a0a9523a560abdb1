#include "components/Motion.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvane {

namespace {

constexpr double restTolerance = 0.005;
// Qt 6.4 writes past its buffers for splines of more than ten pieces.
constexpr int pieces = 8;

double sanitized(double value, double fallback, double low, double high)
{
    return std::isfinite(value) && value > 0 ? std::clamp(value, low, high) : fallback;
}

} // namespace

double Motion::springPosition(double response, double dampingFraction, double seconds)
{
    const double omega = 2 * std::numbers::pi / sanitized(response, 0.5, 0.01, 10);
    const double zeta = sanitized(dampingFraction, 1, 0.05, 1);
    const double t = std::max(0.0, seconds);
    if (zeta >= 1) // critically damped
        return 1 - (1 + omega * t) * std::exp(-omega * t);
    const double damped = omega * std::sqrt(1 - zeta * zeta);
    return 1 - std::exp(-zeta * omega * t) * (std::cos(damped * t) + zeta * omega / damped * std::sin(damped * t));
}

int Motion::springDuration(double response, double dampingFraction)
{
    // The largest deviation still to come is bounded by the decay envelope, so the first
    // moment the envelope is inside the tolerance is a moment after which the spring stays.
    const double omega = 2 * std::numbers::pi / sanitized(response, 0.5, 0.01, 10);
    const double zeta = sanitized(dampingFraction, 1, 0.05, 1);
    for (int ms = 1; ms < 60'000; ++ms) {
        const double t = ms / 1000.0;
        const double envelope = zeta >= 1 ? (1 + omega * t) * std::exp(-omega * t)
                                          : std::exp(-zeta * omega * t) / std::sqrt(1 - zeta * zeta);
        if (envelope < restTolerance)
            return ms;
    }
    return 60'000;
}

QEasingCurve Motion::spring(double response, double dampingFraction)
{
    // Cubic pieces between samples at even steps, each piece leaving and reaching its ends
    // with the spring's own slope there (a Hermite spline). The ends are pinned to (0, 0) and
    // (1, 1), as QEasingCurve requires.
    const double seconds = springDuration(response, dampingFraction) / 1000.0;
    const auto position = [&](double progress) {
        return progress >= 1 ? 1.0 : springPosition(response, dampingFraction, progress * seconds);
    };
    const auto slope = [&](double progress) {
        constexpr double step = 1e-5;
        return (springPosition(response, dampingFraction, (progress + step) * seconds)
                - springPosition(response, dampingFraction, std::max(0.0, progress - step) * seconds))
               / (progress + step - std::max(0.0, progress - step));
    };
    constexpr double width = 1.0 / pieces;
    QEasingCurve curve(QEasingCurve::BezierSpline);
    for (int i = 0; i < pieces; ++i) {
        const double from = i * width;
        const double to = (i + 1) * width;
        curve.addCubicBezierSegment(QPointF(from + width / 3, position(from) + slope(from) * width / 3),
                                    QPointF(to - width / 3, position(to) - slope(to) * width / 3),
                                    QPointF(to, position(to)));
    }
    return curve;
}

} // namespace quorvane
