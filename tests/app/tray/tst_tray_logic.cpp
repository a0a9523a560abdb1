// The tray's logic: the popover's parts, the icon's countdown and tooltip, where it opens.
#include "tray/PopoverContent.h"
#include "tray/PopoverPlacement.h"
#include "tray/TrayText.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<Banner>)
Q_DECLARE_METATYPE(PopoverContent)

class TestTrayLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void content_data()
    {
        QTest::addColumn<bool>("needsSignIn");
        QTest::addColumn<bool>("hasAccount");
        QTest::addColumn<std::optional<Banner>>("banner");
        QTest::addColumn<PopoverContent>("expected");
        const Banner error{u"Signed out"_s, Banner::Kind::error, false};
        const Banner toast{u"Copied link for Intro"_s, Banner::Kind::info, false};
        QTest::newRow("signed in") << false << true << std::optional<Banner>() << PopoverContent{};
        QTest::newRow("signed out, nothing cached: a banner stays away")
            << true << false << std::optional<Banner>(error) << PopoverContent{.signIn = true};
        QTest::newRow("token revoked, account still cached")
            << true << true << std::optional<Banner>(error) << PopoverContent{.banner = true};
        QTest::newRow("a toast is a line, not a banner")
            << false << true << std::optional<Banner>(toast) << PopoverContent{.toast = true};
    }
    void content()
    {
        QFETCH(bool, needsSignIn);
        QFETCH(bool, hasAccount);
        QFETCH(std::optional<Banner>, banner);
        QFETCH(PopoverContent, expected);
        QVERIFY(PopoverContent::select(needsSignIn, hasAccount, banner) == expected);
    }

    // The icon rounds up like the tooltip, so the two agree; eight hours is the horizon.
    void trayText_data()
    {
        QTest::addColumn<bool>("showsNext");
        QTest::addColumn<int>("startIn"); // the next booking ends half an hour after it starts
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("iconText");
        QTest::newRow("starts this second") << true << 0 << u"Now: Ann"_s << u"now"_s;
        QTest::newRow("59 minutes") << true << 3540 << u"Ann in 59m"_s << u"59m"_s;
        QTest::newRow("just over 59 minutes rounds up") << true << 3541 << u"Ann in 1h"_s << u"1h"_s;
        QTest::newRow("an hour and a half") << true << 5400 << u"Ann in 1h 30m"_s << u"1h"_s;
        QTest::newRow("exactly at the horizon") << true << 28800 << u"Ann in 8h"_s << u"8h"_s;
        QTest::newRow("past the horizon") << true << 28801 << u"Quorvane"_s << QString();
        QTest::newRow("ended") << true << -1801 << u"Quorvane"_s << QString();
        QTest::newRow("turned off, a minute away") << false << 60 << u"Quorvane"_s << QString();
    }
    void trayText()
    {
        QFETCH(bool, showsNext);
        QFETCH(int, startIn);
        const Instant now(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
        Booking next;
        next.name = u"Ann Lee"_s;
        next.start = now.addSecs(startIn);
        next.end = next.start.addSecs(1800);
        QTEST(TrayText::toolTip(TrayText::title(next, now, showsNext)), "toolTip");
        QTEST(TrayText::iconText(next, now, showsNext), "iconText");
        // Nothing next reads like nothing soon.
        QCOMPARE(TrayText::toolTip(TrayText::title(std::nullopt, now, true)), u"Quorvane"_s);
        QCOMPARE(TrayText::iconText(std::nullopt, now, true), QString());
    }

    void placement_data()
    {
        QTest::addColumn<QRect>("icon");
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QSize>("popover");
        QTest::addColumn<QRect>("screen");
        QTest::addColumn<QPoint>("expected");
        const QRect screen(0, 0, 1920, 1080), laptop(0, 0, 1280, 800);
        const QSize popover(340, 500);
        QTest::newRow("top panel, middle: centred below")
            << QRect(900, 0, 24, 24) << QPoint(910, 10) << popover << screen << QPoint(912 - 170, 24 + 6);
        QTest::newRow("bottom panel, left corner: above, kept on screen")
            << QRect(4, 1050, 24, 30) << QPoint(10, 1060) << popover << screen << QPoint(0, 1050 - 6 - 500);
        QTest::newRow("second screen to the right, kept on it") << QRect(3800, 0, 24, 24) << QPoint(3810, 10) << popover
                                                                << QRect(1920, 0, 1920, 1080) << QPoint(3840 - 340, 30);
        // The tray said the corner, the click came from the right end of the top panel.
        QTest::newRow("geometry not under the pointer: moved to it")
            << QRect(0, 0, 22, 22) << QPoint(1268, 12) << popover << laptop << QPoint(940, 29);
        QTest::newRow("no geometry, pointer low: above it")
            << QRect() << QPoint(600, 1070) << popover << screen << QPoint(430, 1070 - 6 - 500);
        QTest::newRow("taller than the screen: top stays on it")
            << QRect(900, 0, 24, 24) << QPoint(910, 10) << QSize(340, 1200) << screen << QPoint(742, 0);
    }
    void placement()
    {
        QFETCH(QRect, icon);
        QFETCH(QPoint, cursor);
        QFETCH(QSize, popover);
        QFETCH(QRect, screen);
        QTEST(PopoverPlacement::topLeft(icon, cursor, popover, screen), "expected");
    }
};

QTEST_GUILESS_MAIN(TestTrayLogic)
#include "tst_tray_logic.moc"
