// The main window's frame texts: subtitle, the footer's initials, name and status line.
#include "MainWindowText.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

Q_DECLARE_METATYPE(std::optional<QString>)
Q_DECLARE_METATYPE(std::optional<quorvane::Instant>)

class TestMainWindowText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subtitle_data()
    {
        QTest::addColumn<bool>("offline");
        QTest::addColumn<bool>("saving");
        QTest::addColumn<std::optional<Instant>>("lastRefresh");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("expected");
        const std::optional<Instant> at = QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
        const std::optional<Instant> never;
        const QString us = u"en_US"_s, ny = u"America/New_York"_s;
        QTest::newRow("offline wins over saving") << true << true << at << us << ny << u"Offline"_s;
        QTest::newRow("saving wins over the time") << false << true << at << us << ny << u"Saving…"_s;
        QTest::newRow("updated, in the user's zone and 12-hour clock")
            << false << false << at << us << ny << u"Updated 9:40\u202FAM"_s;
        QTest::newRow("updated, 24-hour locale and another zone")
            << false << false << at << u"de_DE"_s << u"Europe/Berlin"_s << u"Updated 14:40"_s;
        QTest::newRow("nothing yet") << false << false << never << us << ny << QString();
    }
    void subtitle()
    {
        QFETCH(bool, offline);
        QFETCH(bool, saving);
        QFETCH(std::optional<Instant>, lastRefresh);
        QFETCH(QString, locale);
        QFETCH(QString, zone);
        QTEST(MainWindowText::subtitle(offline, saving, lastRefresh, locale, zone), "expected");
    }

    // The footer's initials and name, from the account's name as typed.
    void account_data()
    {
        QTest::addColumn<std::optional<QString>>("name");
        QTest::addColumn<QString>("initials");
        QTest::addColumn<QString>("shown");
        const auto named = [](const QString &name, const QString &initials) {
            QTest::newRow(qPrintable(name)) << std::optional<QString>(name) << initials << name;
        };
        named(u"Ilse Varga"_s, u"IV"_s);
        named(u"Ilse"_s, u"I"_s);
        named(u"Anna Maria Lopez"_s, u"AM"_s);
        named(u"  ilse   van Varga "_s, u"iv"_s); // case as typed, extra blanks dropped
        named(u"   "_s, QString());
        named(u"E\u0301mile Zola"_s, u"\u00C9Z"_s); // an accent written with a combining mark
        named(u"\U0001F469\u200D\U0001F4BB Dev"_s, u"\U0001F469\u200D\U0001F4BBD"_s); // one emoji
        QTest::newRow("no name") << std::optional<QString>() << u"?"_s << u"Not signed in"_s;
    }
    void account()
    {
        QFETCH(std::optional<QString>, name);
        QTEST(MainWindowText::initials(name), "initials");
        QTEST(MainWindowText::accountName(name), "shown");
    }

    void footerStatus_data()
    {
        QTest::addColumn<bool>("offline");
        QTest::addColumn<bool>("google");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("dot");
        QTest::newRow("offline, even when connected") << true << true << u"Offline"_s << int(Tint::secondary);
        QTest::newRow("connected") << false << true << u"Live on Google Calendar"_s << int(Tint::green);
        QTest::newRow("not connected") << false << false << u"Calendar not connected"_s << int(Tint::orange);
    }
    void footerStatus()
    {
        QFETCH(bool, offline);
        QFETCH(bool, google);
        const FooterStatus status = MainWindowText::footerStatus(offline, google);
        QTEST(status.text, "text");
        QTEST(int(status.dot), "dot");
    }
};

QTEST_GUILESS_MAIN(TestMainWindowText)
#include "tst_main_window_text.moc"
