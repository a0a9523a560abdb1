// Which links the app hands to the desktop: web pages and mail only, never files or other schemes.
#include "UrlOpener.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

class UrlOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemes_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("opens");

        QTest::newRow("https") << u"https://meet.google.com/abc-defg-hij"_s << true;
        QTest::newRow("http") << u"http://example.com/ann/intro"_s << true;
        QTest::newRow("mailto") << u"mailto:ann@example.com"_s << true;
        QTest::newRow("file") << u"file:///etc/passwd"_s << false;
        QTest::newRow("scheme lookalike") << u"https-evil://example.com"_s << false;
        QTest::newRow("https without host") << u"https:///etc/passwd"_s << false;
        QTest::newRow("empty mailto") << u"mailto:"_s << false;
    }

    void schemes()
    {
        QFETCH(QString, url);
        QFETCH(bool, opens);

        QList<QUrl> launched;
        const UrlOpener opener([&](const QUrl &u) {
            launched.append(u);
            return true;
        });

        QCOMPARE(opener.open(QUrl(url)), opens);
        QCOMPARE(launched, opens ? QList{QUrl(url)} : QList<QUrl>());
        // The launcher's failure is the caller's to know.
        QVERIFY(!UrlOpener([](const QUrl &) { return false; }).open(QUrl(url)));
    }
};

QTEST_GUILESS_MAIN(UrlOpenerTest)
#include "tst_url_opener.moc"
