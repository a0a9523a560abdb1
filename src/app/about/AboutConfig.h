#pragma once

#include <QString>

namespace quorvane {

// What About shows of this build and its publisher. Any field may be empty.
struct AboutConfig {
    QString version;
    QString build;
    QString site;    // the product's public site
    QString privacy; // its privacy page
    QString terms;   // its terms page
    QString makerName;
    QString makerSite;    // the author's own site
    QString makerProfile; // the author's professional profile
    QString makerMail;    // an address, without "mailto:"
    QString legal;

    // As this build was configured.
    [[nodiscard]] static AboutConfig fromBuild();
};

} // namespace quorvane
