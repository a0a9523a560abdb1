#include "UpdateFeed.h"

#include "Html.h"

#include <QDateTime>

#include <sodium.h>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::UpdateFeed {

namespace {

// 32 bytes: the seed of the test key pair.
constexpr char testSeed[] = "quorvane-sandbox-update-test-key";
static_assert(sizeof(testSeed) - 1 == crypto_sign_SEEDBYTES);

struct KeyPair {
    QByteArray publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};

const KeyPair &keys()
{
    static const KeyPair pair = [] {
        KeyPair k;
        if (sodium_init() < 0)
            qFatal("libsodium could not start");
        crypto_sign_seed_keypair(reinterpret_cast<unsigned char *>(k.publicKey.data()),
                                 reinterpret_cast<unsigned char *>(k.secretKey.data()),
                                 reinterpret_cast<const unsigned char *>(testSeed));
        return k;
    }();
    return pair;
}

} // namespace

QByteArray publicKey()
{
    return keys().publicKey;
}

QString publicKeyBase64()
{
    return QString::fromLatin1(publicKey().toBase64());
}

QByteArray download()
{
    static const QByteArray bytes =
        QByteArray("Quorvane 2.1 for Linux (x86_64), a sandbox release: not a program.\n").repeated(2000);
    return bytes;
}

QByteArray appcast(const QString &baseUrl)
{
    const QByteArray bytes = download();
    QByteArray signature(crypto_sign_BYTES, '\0');
    crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
                         reinterpret_cast<const unsigned char *>(bytes.constData()), quint64(bytes.size()),
                         reinterpret_cast<const unsigned char *>(keys().secretKey.constData()));
    const QString root = baseUrl.endsWith(u'/') ? baseUrl.chopped(1) : baseUrl;
    return uR"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:qv="https://quorvane.app/xml/appcast">
  <channel>
    <title>Quorvane</title>
    <item>
      <title>Quorvane %1</title>
      <qv:version>%2</qv:version>
      <qv:shortVersionString>%1</qv:shortVersionString>
      <qv:minimumSystemVersion>11</qv:minimumSystemVersion>
      <qv:releaseNotesLink>%3/app/releases/%1</qv:releaseNotesLink>
      <enclosure url="%3%4" length="%5" type="application/octet-stream" qv:edSignature="%6"/>
    </item>
  </channel>
</rss>
)"_s.arg(QString::fromLatin1(version))
        .arg(build)
        .arg(root, QString::fromLatin1(downloadPath))
        .arg(bytes.size())
        .arg(QString::fromLatin1(signature.toBase64()))
        .toUtf8();
}

void install(Router &router, std::function<QString()> baseUrl)
{
    router.add("GET", u"/appcast.xml"_s, Router::Access::open, [baseUrl](const HttpRequest &) {
        return HttpReply{200, "application/rss+xml; charset=utf-8", appcast(baseUrl()), {}};
    });
    router.add("GET", QString::fromLatin1(downloadPath), Router::Access::open, [](const HttpRequest &) {
        return HttpReply{200, "application/octet-stream", download(), {}};
    });
    router.add("GET", u"/app/releases/%1"_s.arg(QLatin1StringView(version)), Router::Access::page,
               [](const HttpRequest &) {
                   return HttpReply::html(Html::page(
                       u"Quorvane %1"_s.arg(QLatin1StringView(version)),
                       u"<main><div class=\"card\"><h1>Quorvane %1</h1><p class=\"muted\">A sandbox release, to try "
                       "updates with. Its download is signed with the sandbox's test key.</p><ul><li>Availability: "
                       "the week as a sentence</li><li>Settings in one window</li><li>Signed updates</li></ul>"
                       "</div></main>"_s.arg(QLatin1StringView(version))));
               });
}

} // namespace quorvane::sandbox::UpdateFeed
