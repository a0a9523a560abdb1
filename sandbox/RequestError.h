#pragma once

#include <QString>

namespace quorvane::sandbox {

// Thrown by a handler to answer with a status and a message: {"error": message} for the
// API, an error page for pages. Keeps handlers straight-line.
struct RequestError {
    int status = 400;
    QString message;
};

} // namespace quorvane::sandbox
