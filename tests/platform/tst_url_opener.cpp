#include "UrlOpener.h"

#include <QTest>

using namespace quorvane;

class UrlOpenerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void schemes_data();
    void schemes();
    void reportsALauncherFailure();
};

void UrlOpenerTest::schemes_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("opens");

    QTest::newRow("https") << QStringLiteral("https://meet.google.com/abc-defg-hij") << true;
    QTest::newRow("http") << QStringLiteral("http://example.com/ann/intro") << true;
    QTest::newRow("upper-case scheme") << QStringLiteral("HTTPS://example.com/") << true;
    QTest::newRow("mixed-case scheme") << QStringLiteral("HtTp://example.com") << true;
    QTest::newRow("mailto") << QStringLiteral("mailto:ann@example.com") << true;
    QTest::newRow("mailto with subject") << QStringLiteral("MAILTO:ann@example.com?subject=Hi") << true;
    QTest::newRow("file") << QStringLiteral("file:///etc/passwd") << false;
    QTest::newRow("javascript") << QStringLiteral("javascript:alert(1)") << false;
    QTest::newRow("data") << QStringLiteral("data:text/html,<script>alert(1)</script>") << false;
    QTest::newRow("custom scheme") << QStringLiteral("zoommtg://zoom.us/join?confno=1") << false;
    QTest::newRow("ftp") << QStringLiteral("ftp://example.com/file") << false;
    QTest::newRow("scheme lookalike") << QStringLiteral("https-evil://example.com") << false;
    QTest::newRow("relative path") << QStringLiteral("/home/ann/.ssh/id_rsa") << false;
    QTest::newRow("relative name") << QStringLiteral("example.com") << false;
    QTest::newRow("scheme-relative") << QStringLiteral("//example.com/x") << false;
    QTest::newRow("https without host") << QStringLiteral("https:///etc/passwd") << false;
    QTest::newRow("empty mailto") << QStringLiteral("mailto:") << false;
    QTest::newRow("empty") << QString() << false;
}

void UrlOpenerTest::schemes()
{
    QFETCH(QString, url);
    QFETCH(bool, opens);

    QList<QUrl> launched;
    const UrlOpener opener([&](const QUrl &u) {
        launched.append(u);
        return true;
    });

    QCOMPARE(opener.open(QUrl(url)), opens);
    QCOMPARE(launched.size(), opens ? 1 : 0);
    if (opens)
        QCOMPARE(launched.first(), QUrl(url));
}

void UrlOpenerTest::reportsALauncherFailure()
{
    const UrlOpener opener([](const QUrl &) { return false; });
    QVERIFY(!opener.open(QUrl(QStringLiteral("https://example.com"))));
}

QTEST_GUILESS_MAIN(UrlOpenerTest)
#include "tst_url_opener.moc"
