// The shared view pieces' logic: status pills, skeleton bars, hex colours, icons.
#include "components/HexColor.h"
#include "components/IconMask.h"
#include "components/IconMasks.h"
#include "components/IconProvider.h"
#include "components/Skeleton.h"
#include "components/StatusLabel.h"
#include "components/Symbols.h"
#include "model/AppSection.h"

#include <QFile>
#include <QImage>
#include <QTest>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace quorvane;

using Pill = std::optional<quorvane::StatusLabel>;
Q_DECLARE_METATYPE(quorvane::BookingStatus)
Q_DECLARE_METATYPE(Pill)

class TestViewPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The pill a booking wears in the lists.
    void statusLabel_data()
    {
        QTest::addColumn<BookingStatus>("status");
        QTest::addColumn<int>("endsIn"); // seconds from now
        QTest::addColumn<bool>("noShow");
        QTest::addColumn<Pill>("pill");
        using S = BookingStatus;
        QTest::newRow("no-show stands above cancelled")
            << S::cancelled << -600 << true << Pill({u"No-show"_s, Tint::red});
        QTest::newRow("pending, even once over") << S::pending << -600 << false << Pill({u"Pending"_s, Tint::orange});
        QTest::newRow("cancelled") << S::cancelled << 3600 << false << Pill({u"Cancelled"_s, Tint::secondary});
        QTest::newRow("rejected reads Declined") << S::rejected << 3600 << false << Pill({u"Declined"_s, Tint::red});
        QTest::newRow("confirmed and ended") << S::confirmed << -1 << false << Pill({u"Done"_s, Tint::secondary});
        QTest::newRow("confirmed, ending this instant") << S::confirmed << 0 << false << Pill();
        QTest::newRow("unknown and ended") << S::unknown << -3600 << false << Pill({u"Done"_s, Tint::secondary});
    }
    void statusLabel()
    {
        QFETCH(BookingStatus, status);
        QFETCH(int, endsIn);
        QFETCH(bool, noShow);
        const Instant now = QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
        Booking b;
        b.status = status;
        b.end = now.addSecs(endsIn);
        b.start = b.end.addSecs(-1800);
        b.noShow = noShow;
        QTEST(StatusLabel::of(b, now), "pill");
    }

    // Widths that look random but stay the same from one frame to the next.
    void skeletonWidths()
    {
        QList<int> first, second;
        for (int row = 0; row < 5; ++row)
            first << Skeleton::firstBarWidth(row), second << Skeleton::secondBarWidth(row);
        QCOMPARE(first, (QList<int>{140, 177, 214, 161, 198}));
        QCOMPARE(second, (QList<int>{90, 143, 126, 109, 92}));
    }

    // Read, then written back as the settings store it.
    void hexColor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        QTest::newRow("# on both ends, several, lower case") << u"##34c759###"_s << u"#34C759"_s;
        QTest::newRow("not hex falls back") << u"#12G456"_s << u"#0A84FF"_s;
        QTest::newRow("eight digits lose the top byte") << u"#80112233"_s << u"#112233"_s;
        QTest::newRow("three digits are not expanded") << u"#FFF"_s << u"#000FFF"_s;
        QTest::newRow("seventeen digits overflow") << u"1FFFFFFFFFF112233"_s << u"#0A84FF"_s;
    }
    void hexColor()
    {
        QFETCH(QString, text);
        QCOMPARE(HexColor::parse(text).alpha(), 255);
        QTEST(HexColor::string(HexColor::parse(text)), "written");
        // Other colour spaces are converted, alpha is dropped, nothing is the accent.
        QCOMPARE(HexColor::string(QColor::fromHsv(0, 255, 255, 64)), u"#FF0000"_s);
        QCOMPARE(HexColor::string(QColor()), u"#0A84FF"_s);
    }

    // Every icon the table names, and every name the screens use, is bundled and draws.
    void everySymbolHasItsIcon()
    {
        QStringList names = Symbols::names();
        names << u"wifi.slash"_s << u"exclamationmark.triangle.fill"_s << u"checkmark.circle.fill"_s << u"xmark"_s
              << u"link"_s << u"paperplane"_s << u"command"_s << u"arrow.clockwise"_s << u"video.fill"_s
              << u"phone.fill"_s << u"mappin.and.ellipse"_s << u"text.bubble.fill"_s << u"calendar.badge.clock"_s
              << u"macwindow"_s << u"gearshape"_s << u"power"_s << u"cup.and.saucer"_s << u"person.badge.key"_s
              << u"star.fill"_s << u"menubar.rectangle"_s;
        for (const AppSection section : Section::allCases())
            names.append(Section::symbol(section));
        for (const QString &name : std::as_const(names)) {
            const QString path = Symbols::file(name);
            QVERIFY2(!path.isEmpty() && QFile::exists(path), qPrintable(name + u" -> "_s + path));
            const QImage drawn = IconProvider::render(name, Qt::black, QSize(24, 24));
            QImage blank(drawn.size(), drawn.format());
            blank.fill(Qt::transparent);
            QVERIFY2(drawn != blank, qPrintable(name));
        }
    }

    // What the build drew ahead is what the app would draw now, for every icon; a size not
    // drawn ahead is drawn on the spot, in the same way.
    void iconsDrawnAheadMatchTheirDrawings()
    {
        for (const QString &name : Symbols::names()) {
            for (const int side : {8, 15, 36}) {
                const uchar *ahead = IconMasks::find(Symbols::stem(name), side);
                QVERIFY2(ahead, qPrintable(name));
                const QByteArray now = IconMask::draw(Symbols::file(name), QSize(side, side));
                QVERIFY2(std::memcmp(ahead, now.constData(), size_t(now.size())) == 0, qPrintable(name));
            }
        }
        QVERIFY(!IconMasks::find(u"calendar", 37));
        QVERIFY(!IconMasks::find(u"calendar-x", 9));
        QVERIFY(!IconMasks::find(u"zzz", 16));

        const QImage ahead = IconProvider::render(u"calendar"_s, Qt::red, QSize(16, 16));
        const QByteArray drawn = IconMask::draw(Symbols::file(u"calendar"_s), QSize(16, 16));
        QCOMPARE(ahead, IconMask::tint(reinterpret_cast<const uchar *>(drawn.constData()), QSize(16, 16), Qt::red));
        const QImage odd = IconProvider::render(u"calendar"_s, Qt::red, QSize(37, 30));
        QImage blank(QSize(37, 30), odd.format());
        blank.fill(Qt::transparent);
        QVERIFY(odd != blank);
    }
};

QTEST_MAIN(TestViewPieces)
#include "tst_view_pieces.moc"
