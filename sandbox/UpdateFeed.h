#pragma once

#include "Router.h"

#include <QByteArray>
#include <QString>

#include <functional>

// The service's update feed as the sandbox offers it: one newer release, 2.1 (build 210), and
// its download, signed with a test key that is fixed and public, so tests and the demo can
// hand its public half to the app. Never the publisher's key.
namespace quorvane::sandbox::UpdateFeed {

inline constexpr char version[] = "2.1";
inline constexpr int build = 210;
inline constexpr char downloadPath[] = "/downloads/quorvane-2.1-linux-x86_64";

// The test key's public half: 32 bytes, and as base64 for a command line.
[[nodiscard]] QByteArray publicKey();
[[nodiscard]] QString publicKeyBase64();
// The release's bytes, as served.
[[nodiscard]] QByteArray download();
// The feed naming the download under `baseUrl`.
[[nodiscard]] QByteArray appcast(const QString &baseUrl);

// GET /appcast.xml, the download, and the release's notes page. A tampered download is a planted fault with another
// body on the download's path.
void install(Router &router, std::function<QString()> baseUrl);

} // namespace quorvane::sandbox::UpdateFeed
