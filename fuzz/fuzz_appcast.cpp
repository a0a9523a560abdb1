// The update feed and the check of a download. The input is a feed document, the download's
// bytes and a system version, cut at NUL bytes. Only complete items are kept; only a download
// signed by the key, at its stated length, passes.

#include "Appcast.h"
#include "FuzzInput.h"
#include "support/SigningKeys.h"

#include <sodium.h>

using namespace quorvane;

namespace {

bool isWeb(const QUrl &url)
{
    return (url.scheme() == QLatin1StringView("https") || url.scheme() == QLatin1StringView("http"))
           && !url.host().isEmpty();
}

void checkRelease(const Appcast::Release &release, const QByteArray &download, const test::SigningKeys &keys)
{
    if (release.build <= 0 || release.version.isEmpty() || !isWeb(release.download) || release.length <= 0
        || release.signature.size() != crypto_sign_BYTES || !(release.notes.isEmpty() || isWeb(release.notes)))
        fuzz::fail("an incomplete item was kept", release.download.toEncoded());

    const bool rightLength = download.size() == release.length;
    const QByteArray genuine = keys.sign(download);
    const Appcast::Check given = Appcast::verify(release, download, keys.publicKey);
    if (given == Appcast::Check::ok && release.signature != genuine)
        fuzz::fail("a download passed with a signature the key didn't make");
    Appcast::Release signedRelease = release;
    signedRelease.signature = genuine;
    const Appcast::Check expected = rightLength ? Appcast::Check::ok : Appcast::Check::wrongLength;
    if (Appcast::verify(signedRelease, download, keys.publicKey) != expected)
        fuzz::fail("a signed download was judged wrongly");
    if (Appcast::verify(signedRelease, download, download.left(crypto_sign_PUBLICKEYBYTES - 1))
        != Appcast::Check::badKey)
        fuzz::fail("a short key was taken");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const test::SigningKeys keys;
    if (!keys.ready)
        fuzz::fail("libsodium doesn't start");
    const QList<QByteArray> parts = fuzz::split(fuzz::bytes(data, size), 3);
    const Appcast::Feed feed = Appcast::parse(parts[0]);
    for (const Appcast::Release &release : feed.releases)
        checkRelease(release, parts[1], keys);

    const QString system = QString::fromUtf8(parts[2]);
    for (const int current : {0, 200}) {
        const std::optional<Appcast::Release> newest = Appcast::newest(feed, current, system);
        if (newest && (newest->build <= current || !feed.releases.contains(*newest)))
            fuzz::fail("the newest release is not a newer one of the feed");
    }
    return 0;
}
