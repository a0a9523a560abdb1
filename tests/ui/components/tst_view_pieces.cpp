// The shared view pieces' logic: booking status pills, skeleton bars, hex colours, springs,
// and the icon table with its tinting provider.
#include "AppSection.h"
#include "HexColor.h"
#include "IconProvider.h"
#include "Motion.h"
#include "Skeleton.h"
#include "StatusLabel.h"
#include "Symbols.h"

#include <QFile>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

Q_DECLARE_METATYPE(quorvane::Booking)
Q_DECLARE_METATYPE(std::optional<quorvane::StatusLabel>)

namespace {
const Instant now = QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);

Booking booking(BookingStatus status, qint64 endFromNow, std::optional<bool> noShow)
{
    Booking b;
    b.id = u"b1"_s;
    b.status = status;
    b.end = now.addSecs(endFromNow);
    b.start = b.end.addSecs(-1800);
    b.noShow = noShow;
    return b;
}

// Pixels the icon drew, and whether all of them carry the tint's colour.
struct Ink {
    int pixels = 0;
    bool allTinted = true;
};

Ink inkOf(const QImage &image, const QColor &tint)
{
    Ink ink;
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const QColor c = plain.pixelColor(x, y);
            if (c.alpha() == 0)
                continue;
            ++ink.pixels;
            // Faint edge pixels lose precision to premultiplication; judge the solid ones.
            if (c.alpha() > 128
                && (qAbs(c.red() - tint.red()) > 3 || qAbs(c.green() - tint.green()) > 3
                    || qAbs(c.blue() - tint.blue()) > 3))
                ink.allTinted = false;
        }
    }
    return ink;
}
} // namespace

class TestViewPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusLabel_data()
    {
        QTest::addColumn<Booking>("booking");
        QTest::addColumn<std::optional<StatusLabel>>("expected");
        const std::optional<StatusLabel> none;
        const auto label = [](const char *text, Tint tint) {
            return std::optional<StatusLabel>(StatusLabel{QString::fromUtf8(text), tint});
        };
        QTest::newRow("no-show stands above cancelled")
            << booking(BookingStatus::cancelled, -600, true) << label("No-show", Tint::red);
        QTest::newRow("pending, even once over")
            << booking(BookingStatus::pending, -600, std::nullopt) << label("Pending", Tint::orange);
        QTest::newRow("cancelled") << booking(BookingStatus::cancelled, 3600, false)
                                   << label("Cancelled", Tint::secondary);
        QTest::newRow("rejected reads Declined")
            << booking(BookingStatus::rejected, 3600, false) << label("Declined", Tint::red);
        QTest::newRow("confirmed and ended") << booking(BookingStatus::confirmed, -1, std::nullopt)
                                             << label("Done", Tint::secondary);
        QTest::newRow("confirmed, in progress") << booking(BookingStatus::confirmed, 600, std::nullopt) << none;
        QTest::newRow("confirmed, ending this instant") << booking(BookingStatus::confirmed, 0, false) << none;
        QTest::newRow("unknown and ended") << booking(BookingStatus::unknown, -3600, std::nullopt)
                                           << label("Done", Tint::secondary);
    }
    void statusLabel()
    {
        QFETCH(Booking, booking);
        QFETCH(std::optional<StatusLabel>, expected);
        const std::optional<StatusLabel> actual = StatusLabel::of(booking, now);
        QCOMPARE(actual.has_value(), expected.has_value());
        if (expected) {
            QCOMPARE(actual->text, expected->text);
            QCOMPARE(int(actual->tint), int(expected->tint));
        }
    }

    void skeletonBars_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("0") << 0 << 140 << 90;
        QTest::newRow("1") << 1 << 177 << 143;
        QTest::newRow("10 wraps both") << 10 << 150 << 130;
    }
    void skeletonBars()
    {
        QFETCH(int, row);
        QFETCH(int, first);
        QFETCH(int, second);
        QCOMPARE(Skeleton::firstBarWidth(row), first);
        QCOMPARE(Skeleton::secondBarWidth(row), second);
    }

    void hexColor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("expected");
        const QColor accent(0x0A, 0x84, 0xFF);
        QTest::newRow("bare digits") << u"0A84FF"_s << accent;
        QTest::newRow("# on both ends, several") << u"##0A84FF###"_s << accent;
        QTest::newRow("empty falls back") << QString() << accent;
        QTest::newRow("not hex falls back") << u"#12G456"_s << accent;
        QTest::newRow("eight digits lose the top byte") << u"#80112233"_s << QColor(0x11, 0x22, 0x33);
        QTest::newRow("three digits are not expanded") << u"#FFF"_s << QColor(0, 15, 255);
        QTest::newRow("sixteen digits still fit") << u"FFFFFFFFFF112233"_s << QColor(0x11, 0x22, 0x33);
        QTest::newRow("seventeen digits overflow") << u"1FFFFFFFFFF112233"_s << accent;
    }
    void hexColor()
    {
        QFETCH(QString, text);
        QFETCH(QColor, expected);
        const QColor actual = HexColor::parse(text);
        QCOMPARE(actual.rgba(), expected.rgba());
    }

    void hexString_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("round trip") << HexColor::parse(u"#123ABC"_s) << u"#123ABC"_s;
        QTest::newRow("alpha dropped") << QColor(0x11, 0x22, 0x33, 0x40) << u"#112233"_s;
        QTest::newRow("other colour spaces converted") << QColor::fromHsv(0, 255, 255) << u"#FF0000"_s;
        QTest::newRow("invalid colour") << QColor() << u"#0A84FF"_s;
    }
    void hexString()
    {
        QFETCH(QColor, color);
        QFETCH(QString, expected);
        QCOMPARE(HexColor::string(color), expected);
    }

    // Every icon the table names, and every name the screens use, is bundled and draws.
    void everySymbolHasItsIcon()
    {
        QStringList names = Symbols::names();
        QVERIFY(names.size() > 50);
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
            QVERIFY2(inkOf(IconProvider::render(name, Qt::black, QSize(24, 24)), Qt::black).pixels > 0,
                     qPrintable(name));
        }
        QVERIFY(QFile::exists(u":/qt/qml/Quorvane/Components/icons/LICENSE"_s));
    }

    // The provider's images: the size asked for, the tint of the query, nothing for an
    // unknown name.
    void providerTints_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QSize>("requested");
        QTest::addColumn<QSize>("expectedSize");
        QTest::addColumn<QColor>("tint");
        QTest::addColumn<bool>("drawn");
        QTest::newRow("hex without #") << u"xmark?color=ff3b30"_s << QSize(32, 32) << QSize(32, 32)
                                       << QColor(0xFF, 0x3B, 0x30) << true;
        QTest::newRow("encoded #") << u"link?color=%2334C759"_s << QSize(24, 24) << QSize(24, 24)
                                   << QColor(0x34, 0xC7, 0x59) << true;
        QTest::newRow("no size is 16") << u"sun.max?color=0000ff"_s << QSize() << QSize(16, 16) << QColor(Qt::blue)
                                       << true;
        QTest::newRow("one side given is square") << u"clock?color=00ff00"_s << QSize(0, 40) << QSize(40, 40)
                                                  << QColor(Qt::green) << true;
        QTest::newRow("unknown name") << u"no.such.symbol?color=ff0000"_s << QSize(20, 20) << QSize(20, 20)
                                      << QColor(Qt::red) << false;
    }
    void providerTints()
    {
        QFETCH(QString, id);
        QFETCH(QColor, tint);
        QFETCH(QSize, expectedSize);
        QFETCH(QSize, requested);
        QFETCH(bool, drawn);
        IconProvider provider;
        QSize size;
        const QImage image = provider.requestImage(id, &size, requested);
        QCOMPARE(size, expectedSize);
        QCOMPARE(image.size(), expectedSize);
        const Ink ink = inkOf(image, tint);
        QVERIFY(drawn ? ink.pixels > 10 && ink.allTinted : ink.pixels == 0);
    }

    void springs_data()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("damping");
        QTest::newRow("banner, no overshoot") << 0.5 << 1.0;
        QTest::newRow("section switch, quick") << 0.18 << 0.85;
    }
    void springs()
    {
        QFETCH(double, response);
        QFETCH(double, damping);
        const int duration = Motion::springDuration(response, damping);
        // A spring with that response rests within about its own period, not at once, not later.
        QVERIFY2(duration > response * 1000 * 0.6 && duration < response * 1000 * 2.5, qPrintable(QString::number(duration)));
        for (int ms = duration; ms < duration * 3; ms += 7)
            QVERIFY(qAbs(1 - Motion::springPosition(response, damping, ms / 1000.0)) < 0.005);

        const QEasingCurve curve = Motion::spring(response, damping);
        QCOMPARE(curve.valueForProgress(0), 0.0);
        QCOMPARE(curve.valueForProgress(1), 1.0);
        double highest = 0;
        double previous = 0;
        bool monotonic = true;
        for (int i = 1; i <= 100; ++i) {
            const double p = i / 100.0;
            const double value = curve.valueForProgress(p);
            const double exact = Motion::springPosition(response, damping, p * duration / 1000.0);
            QVERIFY2(qAbs(value - exact) < 0.01, qPrintable(u"%1 at %2, spring says %3"_s.arg(value).arg(p).arg(exact)));
            highest = std::max(highest, value);
            monotonic = monotonic && value >= previous - 1e-9;
            previous = value;
        }
        // Damping 1 comes to rest without passing the target; less than 1 passes it once.
        QCOMPARE(monotonic, damping >= 1);
        QCOMPARE(highest > 1.001, damping < 1);
    }

    void springFromNonsense()
    {
        // Bad numbers from a screen fall back to a plain, finite spring instead of NaN motion.
        QCOMPARE(Motion::springDuration(0, 1), Motion::springDuration(0.5, 1));
        QCOMPARE(Motion::springDuration(qQNaN(), -2), Motion::springDuration(0.5, 1));
        QVERIFY(qIsFinite(Motion::spring(qInf(), 0.5).valueForProgress(0.5)));
    }
};

QTEST_MAIN(TestViewPieces)
#include "tst_view_pieces.moc"
