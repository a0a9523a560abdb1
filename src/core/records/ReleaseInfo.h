#pragma once

#include "Codec.h"

namespace quorvane {

// The description of a published build.
struct ReleaseInfo {
    QString version;
    std::optional<QString> build;
    qint64 size = 0;
    QString filename;
    std::optional<QStringList> notes;
};

QUORVANE_DECLARE_CODEC(ReleaseInfo)

} // namespace quorvane
