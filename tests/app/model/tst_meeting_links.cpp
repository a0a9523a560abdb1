// A meeting link from the server is joined only when it is a web page: a file, a script or
// another application's scheme gets no join button anywhere and opens nothing.
#include "FixtureApp.h"
#include "bookings/Bookings.h"
#include "today/Timeline.h"

#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

class TestMeetingLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWebPagesJoin_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("joins");
        QTest::newRow("https") << u"https://meet.example.com/abc-defg-hij"_s << true;
        QTest::newRow("http") << u"http://meet.example.com/x"_s << true;
        QTest::newRow("file") << u"file:///home/me/.ssh/id_ed25519"_s << false;
        QTest::newRow("javascript") << u"javascript:alert(document.cookie)"_s << false;
        QTest::newRow("custom scheme") << u"zoommtg://zoom.example.com/join?confno=1"_s << false;
        QTest::newRow("mail") << u"mailto:host@example.com"_s << false;
        QTest::newRow("https without host") << u"https:///etc/passwd"_s << false;
    }
    void onlyWebPagesJoin()
    {
        QFETCH(QString, link);
        QFETCH(bool, joins);
        FixtureApp app;
        Booking booking = app.model().next().value();
        booking.meet = link;
        const Instant now = app.model().now();

        QCOMPARE(booking.meetURL().has_value(), joins);
        QCOMPARE(Bookings::actions(booking, now).join, joins);
        QCOMPARE(Bookings::joinsFromDetail(booking, now), joins);
        QCOMPARE(Timeline::showsJoin(booking, now), joins);
        app.model().join(booking);
        QCOMPARE(app.opened, joins ? QList<QUrl>{QUrl(link)} : QList<QUrl>());
    }
};

QTEST_GUILESS_MAIN(TestMeetingLinks)
#include "tst_meeting_links.moc"
