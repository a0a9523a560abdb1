#pragma once

#include <QUrl>

namespace quorvane::Links {

// An absolute http or https address with a host: a page a browser opens. Links from the
// server that are anything else (files, scripts, other applications' schemes) are not acted on.
[[nodiscard]] bool isWebPage(const QUrl &url);

} // namespace quorvane::Links
