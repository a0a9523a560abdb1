#pragma once

#include <QString>

// Plain UTF-8 on the standard streams, whatever the environment's locale says.
namespace quorvane::cli::Output {

void line(const QString &text);
void error(const QString &text);

} // namespace quorvane::cli::Output
