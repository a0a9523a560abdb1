// The update feed read and its downloads checked: good, tampered, truncated, wrong-key,
// wrong-length, downgrade and too-new-for-this-system feeds.
#include "Appcast.h"
#include "support/SigningKeys.h"

#include <QTest>

#include <sodium.h>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

struct Keys : test::SigningKeys {
    Keys() { QVERIFY(ready); }
};

QByteArray item(int build, const QString &version, const QByteArray &signature, qint64 length,
                const QString &minimum = {})
{
    return u"<item><title>Quorvane %2</title><qv:version>%1</qv:version>"
           "<qv:shortVersionString>%2</qv:shortVersionString>"
           "<qv:minimumSystemVersion>%5</qv:minimumSystemVersion>"
           "<qv:releaseNotesLink>https://example.test/notes/%2</qv:releaseNotesLink>"
           "<enclosure url=\"https://example.test/quorvane-%2\" length=\"%3\" type=\"application/octet-stream\" "
           "qv:edSignature=\"%4\"/></item>"_s.arg(build)
               .arg(version)
               .arg(length)
               .arg(QString::fromLatin1(signature.toBase64()), minimum)
               .toUtf8();
}

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\"?><rss version=\"2.0\" xmlns:qv=\"https://quorvane.app/xml/appcast\"><channel>"
           "<title>Quorvane</title>"
           + items + "</channel></rss>";
}

} // namespace

class TestAppcast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void feeds()
    {
        const Keys keys;
        const QByteArray download = QByteArray("#!/bin/sh\necho 2.1\n").repeated(50);
        const QByteArray good = item(210, u"2.1"_s, keys.sign(download), download.size());
        const Appcast::Feed parsed = Appcast::parse(feed(item(205, u"2.0.5"_s, keys.sign("x"), 1) + good));
        QCOMPARE(parsed.releases.size(), 2);
        const std::optional<Appcast::Release> found = Appcast::newest(parsed, 200, u"12"_s);
        QVERIFY(found);
        QCOMPARE(found->version, u"2.1"_s);
        QCOMPARE(found->notes, QUrl(u"https://example.test/notes/2.1"_s));
        QCOMPARE(Appcast::verify(*found, download, keys.publicKey), Appcast::Check::ok);

        // The bytes changed on the way, or signed by another key.
        QByteArray tampered = download;
        tampered[10] = 'X';
        QCOMPARE(Appcast::verify(*found, tampered, keys.publicKey), Appcast::Check::badSignature);
        QCOMPARE(Appcast::verify(*found, download, Keys().publicKey), Appcast::Check::badSignature);
        QCOMPARE(Appcast::verify(*found, download + "!", keys.publicKey), Appcast::Check::wrongLength);
        QCOMPARE(Appcast::verify(*found, download, QByteArray(5, 'k')), Appcast::Check::badKey);

        // Nothing newer than this build: a downgrade is never offered.
        QVERIFY(!Appcast::newest(parsed, 210, u"12"_s));
        // A release for a newer system is passed over for one this system meets.
        const Appcast::Feed picky = Appcast::parse(feed(good + item(220, u"2.2"_s, keys.sign("y"), 1, u"13"_s)));
        QCOMPARE(Appcast::newest(picky, 200, u"12"_s)->build, 210);
        QCOMPARE(Appcast::newest(picky, 200, u"13.1"_s)->build, 220);
    }

    void malformed_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<int>("releases");
        QTest::addColumn<int>("refused");
        const QByteArray signature(64, 's');
        const QByteArray ok = item(210, u"2.1"_s, signature, 10);
        QTest::newRow("cut short: nothing trusted") << feed(ok).left(feed(ok).size() - 20) << 0 << 0;
        QTest::newRow("not a feed") << QByteArray("{\"version\": 3}") << 0 << 0;
        QTest::newRow("short signature") << feed(item(210, u"2.1"_s, signature.left(63), 10)) << 0 << 1;
        QTest::newRow("no length") << feed(item(210, u"2.1"_s, signature, 0)) << 0 << 1;
        QTest::newRow("build not a number")
            << feed(QByteArray(ok).replace("<qv:version>210", "<qv:version>2.1")) << 0 << 1;
        QTest::newRow("download not on the web")
            << feed(QByteArray(ok).replace("https://example.test/quorvane", "file:///tmp/quorvane")) << 0 << 1;
        QTest::newRow("one good, one bad") << feed(ok + item(211, {}, signature, 10)) << 1 << 1;
    }
    void malformed()
    {
        QFETCH(QByteArray, document);
        const Appcast::Feed parsed = Appcast::parse(document);
        QTEST(int(parsed.releases.size()), "releases");
        QTEST(parsed.refused, "refused");
    }
};

QTEST_APPLESS_MAIN(TestAppcast)
#include "tst_appcast.moc"
