#pragma once

#include <QStringList>

// The colours handed out to new event types, in order.
namespace quorvane::Palette {

[[nodiscard]] const QStringList &colors();

} // namespace quorvane::Palette
