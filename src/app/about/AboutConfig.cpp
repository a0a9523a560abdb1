#include "about/AboutConfig.h"

#include "BuildInfo.h"
#include "PublisherInfo.h"

namespace quorvane {

AboutConfig AboutConfig::fromBuild()
{
    const auto text = [](const char *value) { return QString::fromUtf8(value).trimmed(); };
    return {
        .version = text(build::version),
        .build = text(build::number),
        .site = text(publisher::site),
        .privacy = text(publisher::privacy),
        .terms = text(publisher::terms),
        .makerName = text(build::makerName),
        .makerSite = text(build::makerSite),
        .makerProfile = text(publisher::makerProfile),
        .makerMail = text(publisher::makerMail),
        .legal = text(publisher::legal),
    };
}

} // namespace quorvane
