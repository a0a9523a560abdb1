#pragma once

#include "about/AboutConfig.h"
#include "about/LinkListModel.h"

#include <QList>
#include <QString>

namespace quorvane {

// What About says, worked out from the build's configuration.
namespace About {
using Link = LinkListModel::Link;

// "Version 2.0 (200)"; a build without a version is 2.0, and one without a build number
// shows no brackets.
[[nodiscard]] QString versionLine(const QString &version, const QString &build);
// How the author's site is named in its link: its host, without "www.".
[[nodiscard]] QString siteName(const QUrl &site);
// "Website", "Privacy", "Terms", each only where it leads somewhere the app may open.
[[nodiscard]] QList<Link> productLinks(const AboutConfig &config);
// The author's site, "LinkedIn", "Quorvane" and "Contact", on the same terms.
[[nodiscard]] QList<Link> authorLinks(const AboutConfig &config);
// "Made by {name}", or empty without a name.
[[nodiscard]] QString madeBy(const QString &makerName);
} // namespace About

} // namespace quorvane
