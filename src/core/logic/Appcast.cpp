#include "Appcast.h"

#include "Version.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <sodium.h>

using namespace Qt::StringLiterals;

namespace quorvane::Appcast {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Appcast)
};

bool isWeb(const QUrl &url)
{
    return url.isValid() && (url.scheme() == "https"_L1 || url.scheme() == "http"_L1) && !url.host().isEmpty();
}

// One <item>, read up to its end tag.
std::optional<Release> readItem(QXmlStreamReader &xml)
{
    Release r;
    bool buildRead = false;
    bool lengthRead = false;
    while (xml.readNextStartElement()) {
        const bool ours = xml.namespaceUri() == QLatin1StringView(namespaceURI);
        const QStringView name = xml.name();
        if (ours && name == "version"_L1) {
            r.build = xml.readElementText().trimmed().toInt(&buildRead);
        } else if (ours && name == "shortVersionString"_L1) {
            r.version = xml.readElementText().trimmed();
        } else if (ours && name == "minimumSystemVersion"_L1) {
            r.minimumSystem = xml.readElementText().trimmed();
        } else if (ours && name == "releaseNotesLink"_L1) {
            const QUrl notes(xml.readElementText().trimmed(), QUrl::StrictMode);
            r.notes = isWeb(notes) ? notes : QUrl();
        } else if (!ours && name == "enclosure"_L1) {
            const QXmlStreamAttributes a = xml.attributes();
            r.download = QUrl(a.value("url"_L1).toString(), QUrl::StrictMode);
            r.length = a.value("length"_L1).toLongLong(&lengthRead);
            r.signature = QByteArray::fromBase64(a.value(QLatin1StringView(namespaceURI), "edSignature"_L1).toLatin1(),
                                                 QByteArray::AbortOnBase64DecodingErrors);
            xml.skipCurrentElement();
        } else {
            xml.skipCurrentElement();
        }
    }
    const bool complete = buildRead && r.build > 0 && !r.version.isEmpty() && isWeb(r.download) && lengthRead
                          && r.length > 0 && r.signature.size() == crypto_sign_BYTES;
    return complete ? std::optional(r) : std::nullopt;
}

} // namespace

Feed parse(const QByteArray &document)
{
    Feed feed;
    QXmlStreamReader xml(document);
    if (!xml.readNextStartElement() || xml.name() != "rss"_L1)
        return {};
    while (xml.readNextStartElement()) {
        if (xml.name() != "channel"_L1) {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() != "item"_L1) {
                xml.skipCurrentElement();
                continue;
            }
            if (std::optional<Release> r = readItem(xml))
                feed.releases.append(std::move(*r));
            else
                ++feed.refused;
        }
    }
    // A document cut short is not trusted for any of its items.
    if (xml.hasError())
        return {};
    return feed;
}

std::optional<Release> newest(const Feed &feed, int currentBuild, const QString &systemVersion)
{
    std::optional<Release> best;
    for (const Release &r : feed.releases) {
        if (r.build <= currentBuild)
            continue;
        if (!systemVersion.isEmpty() && !r.minimumSystem.isEmpty() && Version::isNewer(r.minimumSystem, systemVersion))
            continue;
        if (!best || r.build > best->build)
            best = r;
    }
    return best;
}

Check verify(const Release &release, const QByteArray &bytes, const QByteArray &publicKey)
{
    if (publicKey.size() != crypto_sign_PUBLICKEYBYTES)
        return Check::badKey;
    if (bytes.size() != release.length)
        return Check::wrongLength;
    if (sodium_init() < 0 || release.signature.size() != crypto_sign_BYTES)
        return Check::badSignature;
    const int result =
        crypto_sign_verify_detached(reinterpret_cast<const unsigned char *>(release.signature.constData()),
                                    reinterpret_cast<const unsigned char *>(bytes.constData()), quint64(bytes.size()),
                                    reinterpret_cast<const unsigned char *>(publicKey.constData()));
    return result == 0 ? Check::ok : Check::badSignature;
}

QString refusal(Check check, const QString &version)
{
    switch (check) {
    case Check::ok:
        return {};
    case Check::wrongLength:
        return Text::tr("The download of Quorvane %1 was refused: it isn't the size the update feed gives.")
            .arg(version);
    case Check::badSignature:
        return Text::tr("The download of Quorvane %1 was refused: its signature doesn't match Quorvane's key.")
            .arg(version);
    case Check::badKey:
        break;
    }
    return Text::tr("Updates can't be verified: this copy of Quorvane has no valid update key.");
}

} // namespace quorvane::Appcast
