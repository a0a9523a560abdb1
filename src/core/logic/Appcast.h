#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

// The update feed: an RSS document with one item per release, each naming its download and
// the Ed25519 signature of the download's bytes.
//
//   <rss version="2.0" xmlns:qv="https://quorvane.app/xml/appcast">
//     <channel><item>
//       <title>Quorvane 2.1</title>
//       <qv:version>210</qv:version>
//       <qv:shortVersionString>2.1</qv:shortVersionString>
//       <qv:minimumSystemVersion>12</qv:minimumSystemVersion>
//       <qv:releaseNotesLink>https://…/notes/2.1</qv:releaseNotesLink>
//       <enclosure url="https://…/quorvane-2.1-x86_64" length="1234567"
//                  type="application/octet-stream" qv:edSignature="(base64, 64 bytes)"/>
//     </item></channel>
//   </rss>
namespace quorvane::Appcast {

inline constexpr char namespaceURI[] = "https://quorvane.app/xml/appcast";

struct Release {
    int build = 0;         // qv:version, a whole number: what "newer" is decided on
    QString version;       // qv:shortVersionString, shown to people
    QString minimumSystem; // empty: any
    QUrl notes;            // http(s) or empty
    QUrl download;         // http(s)
    qint64 length = 0;     // bytes
    QByteArray signature;  // 64 bytes
    bool operator==(const Release &) const = default;
};

struct Feed {
    QList<Release> releases; // the items that are complete and well formed, in feed order
    int refused = 0;         // items left out: a field missing or malformed
};

// Never fails: a document that isn't a feed gives no releases. An item is kept only with a
// whole build number, a version text, an http(s) download, a positive length and a signature
// of exactly 64 bytes.
[[nodiscard]] Feed parse(const QByteArray &document);

// The newest release above `currentBuild` that this system meets (by dotted comparison of
// `minimumSystem` with `systemVersion`; an empty system version meets all); none when this is
// the newest.
[[nodiscard]] std::optional<Release> newest(const Feed &feed, int currentBuild, const QString &systemVersion);

enum class Check { ok, wrongLength, badSignature, badKey };

// Whether `bytes` are the release's download: its length, and its signature under the
// 32-byte Ed25519 public key.
[[nodiscard]] Check verify(const Release &release, const QByteArray &bytes, const QByteArray &publicKey);

// The message a user reads when a download was refused.
[[nodiscard]] QString refusal(Check check, const QString &version);

} // namespace quorvane::Appcast
